// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/systeminfo.h"
#include "store/records.h"

#include <QList>
#include <QMainWindow>

#include <memory>

namespace Ui {
class WindowLogin;
}

class AccountNotice;
class LoginComboBox;
class MainWindow;
class UserService;

// The login screen, and the one top-level window of the program: after the login it hides its
// login page, takes another size and holds the MainWindow. Being frameless, it keeps its window
// states itself. The first object of the process is the window; a later one stays empty. Main
// thread.
class WindowLogin final : public QMainWindow
{
    Q_OBJECT

public:
    explicit WindowLogin(QWidget* parent = nullptr);
    ~WindowLogin() override;

    // A number of the brand table; the constructor takes 0.
    void setBrand(int number);

    // Null until the login has succeeded.
    MainWindow* mainWindow() const { return mainWindow_; }

private slots:
    void logined();
    void responseError(
        const QString& type, const QString& errorType, int errorCode, const QString& error);
    void on_checkBox_clicked();
    void moveWindow(QPoint movePoint);
    void loadLanguage(int lang);
    void languageChanged(SystemInfo::SYSTEM_TYPE_LAGNUAGE language);
    void userEditIndexChanged(int index);
    void backToLogin();
    void minimize();
    void fullScreen();
    void normalScreen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void connectSignals();
    void buildCombos();
    void restoreLastLogin();
    void installFilters();
    void placeWindow();
    void centre(const QSize& size);

    void filterClose(const QEvent* event);
    void filterField(bool isUser, const QEvent* event);
    void filterActivation(const QObject* watched);
    void showFieldFocus(bool isUser, bool focused);

    void toggleEye();
    void signIn();
    void localLogin();
    void openAccountPage(AccountNotice* page);
    void reloadLogins();
    void fillUserCombo();
    void fillLanguageCombo();
    void showPlaceholders();
    void applyBrandTexts();
    void showMessage(const QString& text);
    void setBusy(bool busy);
    int buttonFontPixels(const QString& text, bool busy) const;

    const std::unique_ptr<Ui::WindowLogin> ui_;
    UserService* userService_ = nullptr;
    MainWindow* mainWindow_ = nullptr;
    LoginComboBox* userCombo_ = nullptr;
    LoginComboBox* languageCombo_ = nullptr;
    AccountNotice* registerWindow_ = nullptr;
    AccountNotice* forgetWindow_ = nullptr;
    bool passwordVisible_ = false;
    bool minimized_ = false;
    bool isPlaced_ = true; // the window manager has told where the main frame stands
    bool normalScreen_ = true;
    QString rememberText_; // last state of the check box
    QList<LoginRecord> logins_; // newest first, and the items of userCombo_ in the same order
    bool busy_ = false; // a cloud login is under way
    int brand_ = 0;
};

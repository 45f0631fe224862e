// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSet>
#include <QTimer>
#include <QWidget>

#include <memory>
#include <vector>

class Device;
class MenuListDev;
class WaitingCircle;

namespace Ui {
class MenuDevList;
}

// The panel "Device List": search box, the devices with their channel cards, "Add Device". It shows
// the registry and has it load the list: after a local login at once and whole, after a cloud login
// page by page, the next one when the list is scrolled to its end. A page that fails is asked for again
// each second, ten times. Main thread.
class MenuDevList final : public QWidget
{
    Q_OBJECT

public:
    explicit MenuDevList(QWidget* parent = nullptr);
    ~MenuDevList() override;

public slots:
    void loadDevList(); // its next page
    void reloadDev(Device* dev); // it was changed, added or removed; null: the whole list
    void reloadDevList(); // the page that failed
    void getDevResponsed(int size);
    void getDevResponseError(
        const QString& type, const QString& errorType, int errorCode, const QString& error);
    void resizeDevList();
    void refresh();
    void searchDev(const QString& text);
    void sliderChanged(int val);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void requestPage(int page);
    bool mayLoadMore() const;
    void loadLocalList();
    void showWaiting();
    void rebuild();
    void addBlock(Device* device);
    void deleteBlocks();
    void noteFold(const MenuListDev* block);
    void showHints();
    void showRefresh();

    const std::unique_ptr<Ui::MenuDevList> ui_;
    WaitingCircle* waitingCircle_ = nullptr; // while a page is awaited
    std::vector<MenuListDev*> blocks_; // owned by the list
    QSet<QString> unfolded_; // UIDs: a rebuilt list looks as before
    QTimer retryTimer_;
    int retryCount_ = 0; // of failures in a row
    int page_ = 0; // that was asked for last, from 1
    bool isEnd_ = false; // there is no further page
    bool isLoaded_ = false; // a first list has come
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/windowlogin.h"

#include "app/activation.h"
#include "app/brand.h"
#include "app/dragarea.h"
#include "app/hint.h"
#include "app/logincombobox.h"
#include "app/mainwindow.h"
#include "app/pictures.h"
#include "cloud/accountnotice.h"
#include "cloud/userservice.h"
#include "store/localstore.h"
#include "ui_windowlogin.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMoveEvent>
#include <QScreen>
#include <QSignalBlocker>
#include <QStyledItemDelegate>
#include <QWindow>

#include <optional>

namespace {

struct Language
{
    const char* name; // translated
    const char* nativeName;
    std::optional<QLocale::Language> locale; // of the window; none leaves it as it was
};

// By the value of SYSTEM_TYPE_LAGNUAGE. Spanish and Russian keep the locale before them.
const Language languages[SystemInfo::languageCount] = {
    {QT_TRANSLATE_NOOP("WindowLogin", "English"), "English", QLocale::English},
    {QT_TRANSLATE_NOOP("WindowLogin", "Chinese Simply"), "中文简体", QLocale::Chinese},
    {QT_TRANSLATE_NOOP("WindowLogin", "Chinese Traditional"), "中文繁體", QLocale::Chinese},
    {QT_TRANSLATE_NOOP("WindowLogin", "French"), "Français", QLocale::French},
    {QT_TRANSLATE_NOOP("WindowLogin", "Italian"), "Italiano", QLocale::Italian},
    {QT_TRANSLATE_NOOP("WindowLogin", "Dutch"), "Nederlands", QLocale::Dutch},
    {QT_TRANSLATE_NOOP("WindowLogin", "Spanish"), "Español", std::nullopt},
    {QT_TRANSLATE_NOOP("WindowLogin", "Russian"), "русский", std::nullopt},
    {QT_TRANSLATE_NOOP("WindowLogin", "German"), "Deutsch", QLocale::German},
    {QT_TRANSLATE_NOOP("WindowLogin", "Japanese"), "日本語", QLocale::Japanese},
};

QPixmap picture(const char* name)
{
    return QPixmap(keyPicture(name) + QStringLiteral(".png"));
}

// The whole style string of a field: it is replaced, not added to.
QString fieldStyle(const char* borderColor)
{
    return QStringLiteral("border-width:1px;border-style:solid;border-radius:4px;border-color: %1;")
        .arg(QLatin1String(borderColor));
}

// The main Return key, pressed and not held down; the keypad's Enter does nothing.
bool isReturn(const QKeyEvent& key)
{
    return key.key() == Qt::Key_Return && !key.isAutoRepeat();
}

WindowLogin* theWindow = nullptr;

} // namespace

WindowLogin::WindowLogin(QWidget* parent)
    : QMainWindow(parent)
    , ui_(std::make_unique<Ui::WindowLogin>())
    , userService_(UserService::instance())
{
    if (theWindow != nullptr)
        return;
    theWindow = this;
    ui_->setupUi(this);
    SystemInfo* system = SystemInfo::instance();
    setWindowFlags(Qt::Window | Qt::FramelessWindowHint);

    QWidget* panels = ui_->widget_loginPanel->parentWidget();
    registerWindow_ = new AccountNotice(AccountNotice::Register, panels);
    forgetWindow_ = new AccountNotice(AccountNotice::ResetPassword, panels);
    for (AccountNotice* page : {registerWindow_, forgetWindow_}) {
        ui_->layout_panels->addWidget(page);
        page->hide();
    }

    connectSignals();
    system->setLanguage(SystemInfo::English);
    buildCombos();
    restoreLastLogin();
    connect(userCombo_, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &WindowLogin::userEditIndexChanged);
    // Also when the item picked is the current one, whose password a typed name has cleared.
    connect(userCombo_, QOverload<int>::of(&QComboBox::activated), this,
        &WindowLogin::userEditIndexChanged);
    ui_->label_version->setText(QLatin1Char('v') + system->version());
    ui_->label_version->adjustSize();
    setTabOrder(userCombo_, ui_->lineEdit_password);
    installFilters();
    setBrand(0);
    placeWindow();
}

WindowLogin::~WindowLogin()
{
    if (theWindow == this)
        theWindow = nullptr;
}

void WindowLogin::connectSignals()
{
    SystemInfo* system = SystemInfo::instance();
    connect(userService_, &UserService::logined, this, &WindowLogin::logined);
    connect(userService_, &UserService::responseErrorMsg, this, &WindowLogin::responseError);
    connect(system, &SystemInfo::backToLoginMsg, this, &WindowLogin::backToLogin);
    connect(system, &SystemInfo::languageChangedMsg, this, &WindowLogin::languageChanged);
    connect(system, &SystemInfo::minimizeMsg, this, &WindowLogin::minimize);
    connect(system, &SystemInfo::normalScreenMsg, this, &WindowLogin::normalScreen);
    connect(system, &SystemInfo::fullScreenMsg, this, &WindowLogin::fullScreen);
    connect(ui_->widget_title, &DragArea::moveMsg, this, &WindowLogin::moveWindow);
}

void WindowLogin::buildCombos()
{
    constexpr int height = 40;
    auto* delegate = new QStyledItemDelegate(this);

    languageCombo_ = ui_->comboBox_language;
    languageCombo_->setMinimumHeight(height);
    languageCombo_->setItemDelegate(delegate);
    for (int i = 0; i < SystemInfo::languageCount; ++i) {
        languageCombo_->addItem(QString());
        languageCombo_->setItemData(i, Qt::AlignCenter, Qt::TextAlignmentRole);
    }
    fillLanguageCombo();
    connect(languageCombo_, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
        &WindowLogin::loadLanguage);

    userCombo_ = ui_->comboBox_user;
    userCombo_->setMinimumHeight(height);
    userCombo_->setItemDelegate(delegate);
    userCombo_->makeEditable();
    ui_->lineEdit_password->setContextMenuPolicy(Qt::NoContextMenu);
    ui_->lineEdit_password->setEchoMode(QLineEdit::Password);
    showPlaceholders();
    connect(userCombo_, &QComboBox::currentTextChanged, ui_->lineEdit_password, &QLineEdit::clear);
}

void WindowLogin::restoreLastLogin()
{
    logins_ = LocalStore::instance()->loadLogins();
    fillUserCombo();
    if (logins_.isEmpty())
        return;
    const LoginRecord& last = logins_.first();
    userCombo_->setCurrentText(last.username);
    if (last.isremember) {
        ui_->checkBox->setChecked(true);
        ui_->lineEdit_password->setText(last.password);
    }
    // A number that no language has leaves the box as it is.
    if (last.language >= 0 && last.language < languageCombo_->count())
        languageCombo_->setCurrentIndex(last.language);
}

void WindowLogin::installFilters()
{
    for (QWidget* element : std::initializer_list<QWidget*>{ui_->label_close, ui_->label_eye,
             ui_->pushButton_login, userCombo_, ui_->lineEdit_password, ui_->widget_localLogin,
             ui_->label_forget, ui_->label_register})
        element->installEventFilter(this);
    // A press on it must not drag the window by the strip it lies on.
    ui_->label_close->setAttribute(Qt::WA_NoMousePropagation);
}

void WindowLogin::placeWindow()
{
    SystemInfo* system = SystemInfo::instance();
    centre(ui_->widget_loginPage->minimumSize() * system->getRatio());
    system->setFontSize(ui_->label_version, SystemInfo::NormalFont);
}

void WindowLogin::centre(const QSize& size)
{
    QRect place({}, size);
    place.moveCenter(screen()->geometry().center());
    setGeometry(place);
}

void WindowLogin::setBrand(int number)
{
    if (theWindow != this)
        return;
    brand_ = number;
    const Brand& brand = brandOf(number);
    QLabel* logo = ui_->label_logo;
    // In line with the fields at the left, and on the middle line of the default logo.
    const QRect before = logo->geometry();
    logo->setFixedSize(brand.loginLogoSize);
    logo->move(before.left(), before.center().y() - brand.loginLogoSize.height() / 2);
    const QString file = QLatin1String(brand.loginLogo);
    logo->setStyleSheet(
        brand.logoScaled ? QString() : QStringLiteral("border-image:url(%1);").arg(file));
    logo->setPixmap(brand.logoScaled ? QPixmap(file).scaled(
                        brand.loginLogoSize, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                                     : QPixmap());
    applyBrandTexts();
    if (mainWindow_ != nullptr)
        mainWindow_->setBrand(brand_);
}

void WindowLogin::applyBrandTexts()
{
    const Brand& brand = brandOf(brand_);
    setWindowTitle(QCoreApplication::translate("MainWindow", brand.title));
    if (brand.registerNow) {
        ui_->label_register->setText(ui_->label_register->text().replace(
            QStringLiteral("here"), QStringLiteral("immediately.")));
    }
    setBusy(busy_);
}

void WindowLogin::setBusy(bool busy)
{
    busy_ = busy;
    const Brand& brand = brandOf(brand_);
    const QString text = busy ? tr("Signing in, please wait...") : tr("Login");
    QPushButton* button = ui_->pushButton_login;
    button->setText(text);
    button->setStyleSheet(
        QStringLiteral("QPushButton{background-color: %1;border: 1px solid %2;border-radius:4px;"
                       "color: %3;font-size:%4px;font-weight:%5;}"
                       "QPushButton:hover{background-color: %6;}"
                       "QPushButton:focus{border: 2px solid #2E5FC4;}")
            .arg(QLatin1String(busy ? brand.buttonBusy : brand.buttonColor),
                QLatin1String(busy ? brand.buttonBusy : brand.buttonBorder),
                QLatin1String(brand.buttonTextColor))
            .arg(buttonFontPixels(text, busy))
            .arg(busy ? 600 : 700)
            .arg(QLatin1String(busy ? brand.buttonBusy : brand.buttonHover)));
}

// The one text that must stay on one line however long a language makes it: its font shrinks.
int WindowLogin::buttonFontPixels(const QString& text, bool busy) const
{
    constexpr int margin = 12;
    QFont font = ui_->pushButton_login->font();
    font.setBold(true);
    const int room = ui_->pushButton_login->width() - 2 * margin;
    constexpr int smallest = 14;
    for (const int pixels : {19, 16}) {
        font.setPixelSize(pixels);
        if (!busy && QFontMetrics(font).horizontalAdvance(text) <= room)
            return pixels;
    }
    return smallest;
}

bool WindowLogin::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui_->label_close)
        filterClose(event);
    else if (watched == userCombo_ || watched == ui_->lineEdit_password)
        filterField(watched == userCombo_, event);
    else if (isActivation(event))
        filterActivation(watched);
    return QMainWindow::eventFilter(watched, event);
}

void WindowLogin::filterClose(const QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        ui_->label_close->setPixmap(picture("btn_close_pre"));
        break;
    case QEvent::MouseButtonPress:
        ui_->label_close->setPixmap(picture("btn_close"));
        break;
    case QEvent::Leave:
        ui_->label_close->setPixmap(picture("btn_login_close_nor"));
        break;
    case QEvent::MouseButtonRelease:
        if (static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton)
            close();
        break;
    default:
        if (event->type() == QEvent::KeyPress && isActivation(event))
            close();
    }
}

void WindowLogin::filterField(bool isUser, const QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        showFieldFocus(isUser, event->type() == QEvent::FocusIn);
    else if (event->type() == QEvent::KeyPress && isReturn(static_cast<const QKeyEvent&>(*event)))
        signIn();
}

void WindowLogin::showFieldFocus(bool isUser, bool focused)
{
    QWidget* field = isUser ? static_cast<QWidget*>(userCombo_) : ui_->lineEdit_password;
    field->setStyleSheet(fieldStyle(focused ? "#aaa" : "rgb(204, 204, 204)"));
    // The border alone is too faint: a bar and the icon tell where the focus is. They are siblings
    // of the field, whose own style string has just been replaced.
    (isUser ? ui_->widget_userBar : ui_->widget_passwordBar)->setVisible(focused);
    QLabel* icon = isUser ? ui_->label_userIcon : ui_->label_lockIcon;
    const char* name = isUser ? "login_user" : "login_lock";
    const char* focusedName = isUser ? "login_user-on" : "login_lock-on";
    icon->setPixmap(picture(focused ? focusedName : name));
}

void WindowLogin::filterActivation(const QObject* watched)
{
    if (watched == ui_->label_eye)
        toggleEye();
    else if (watched == ui_->pushButton_login)
        signIn();
    else if (watched == ui_->widget_localLogin)
        localLogin();
    else if (watched == ui_->label_forget)
        openAccountPage(forgetWindow_);
    else if (watched == ui_->label_register)
        openAccountPage(registerWindow_);
}

void WindowLogin::toggleEye()
{
    passwordVisible_ = !passwordVisible_;
    ui_->lineEdit_password->setEchoMode(passwordVisible_ ? QLineEdit::Normal : QLineEdit::Password);
    ui_->label_eye->setPixmap(
        picture(passwordVisible_ ? "btn_login_visible" : "btn_login_invisible"));
}

void WindowLogin::signIn()
{
    showMessage({});
    const QString username = userCombo_->lineEdit()->text();
    const QString password = ui_->lineEdit_password->text();
    if (username.isEmpty()) {
        showMessage(tr("Please enter the username."));
        return;
    }
    if (password.isEmpty()) {
        showMessage(tr("Please enter the password."));
        return;
    }
    // Before the server has answered: a login that fails is remembered too.
    LocalStore::instance()->saveLogin(
        username, password, ui_->checkBox->isChecked(), languageCombo_->currentIndex());
    reloadLogins();
    setBusy(true);
    userService_->setUsername(username);
    userService_->setPassword(password);
    userService_->setLocalMode(false);
    userService_->login();
}

void WindowLogin::localLogin()
{
    userService_->setUsername(QStringLiteral("Admin"));
    userService_->setPassword(QString());
    userService_->setLocalMode(true);
    logined();
}

// The items follow the records, so that an item always brings its own password; what the user sees
// in the field stays.
void WindowLogin::reloadLogins()
{
    const QSignalBlocker blocker(userCombo_);
    const QString typed = userCombo_->currentText();
    logins_ = LocalStore::instance()->loadLogins();
    fillUserCombo();
    userCombo_->setCurrentIndex(userCombo_->findText(typed, Qt::MatchExactly));
    userCombo_->setEditText(typed);
}

void WindowLogin::fillUserCombo()
{
    userCombo_->clear();
    for (const LoginRecord& login : qAsConst(logins_))
        userCombo_->addItem(login.username);
}

void WindowLogin::fillLanguageCombo()
{
    const int current = SystemInfo::instance()->getLanguage();
    for (int i = 0; i < SystemInfo::languageCount; ++i) {
        QString text = tr(languages[i].name);
        if (i != current)
            text +=
                QLatin1Char('(') + QString::fromUtf8(languages[i].nativeName) + QLatin1Char(')');
        languageCombo_->setItemText(i, text);
    }
}

void WindowLogin::showPlaceholders()
{
    userCombo_->lineEdit()->setPlaceholderText(tr("Enter your username"));
    ui_->lineEdit_password->setPlaceholderText(tr("Enter your password"));
}

void WindowLogin::showMessage(const QString& text)
{
    ui_->label_message->setText(text);
    ui_->label_message->setToolTip(plainHint(text));
}

void WindowLogin::openAccountPage(AccountNotice* page)
{
    ui_->widget_loginPanel->hide();
    page->show();
    page->setFocus();
}

void WindowLogin::backToLogin()
{
    registerWindow_->hide();
    forgetWindow_->hide();
    ui_->widget_loginPanel->show();
    userCombo_->setFocus();
}

void WindowLogin::logined()
{
    // A late answer of the cloud, after a local login.
    if (mainWindow_ != nullptr)
        return;
    hide();
    setBusy(false);
    ui_->widget_loginPage->hide();
    constexpr int width = 1080;
    constexpr int height = 720;
    const double ratio = SystemInfo::instance()->getRatio();
    centre(QSize(qRound(width * ratio), qRound(height * ratio)));

    mainWindow_ = new MainWindow(ui_->centralwidget);
    mainWindow_->setWindowLogin(this);
    mainWindow_->setBrand(brand_);
    ui_->layout_central->addWidget(mainWindow_);
    connect(mainWindow_, &MainWindow::moveMsg, this, &WindowLogin::moveWindow);
    setWindowFlags(Qt::FramelessWindowHint);
    isPlaced_ = false;
    mainWindow_->showWindow();
    show();
    // Hiding took the activation away, and the window manager, which gives the focus to the same
    // window again, tells nothing new.
    QApplication::setActiveWindow(this);
}

void WindowLogin::responseError(
    const QString& type, const QString& errorType, int errorCode, const QString& error)
{
    if (type != QLatin1String("login"))
        return;
    setBusy(false);
    showMessage(QStringLiteral("[%1]:(%2)%3").arg(errorType, QString::number(errorCode), error));
}

void WindowLogin::on_checkBox_clicked()
{
    rememberText_ = ui_->checkBox->isChecked() ? QStringLiteral("true") : QStringLiteral("false");
}

void WindowLogin::moveWindow(QPoint movePoint)
{
    if (normalScreen_)
        move(pos() + movePoint);
}

void WindowLogin::loadLanguage(int lang)
{
    SystemInfo::instance()->setLanguage(static_cast<SystemInfo::SYSTEM_TYPE_LAGNUAGE>(lang));
}

void WindowLogin::languageChanged(SystemInfo::SYSTEM_TYPE_LAGNUAGE language)
{
    const bool known = language >= 0 && language < SystemInfo::languageCount;
    if (known && languages[language].locale)
        setLocale(QLocale(*languages[language].locale));
    ui_->retranslateUi(this);
    if (userCombo_ == nullptr)
        return; // before the boxes are built
    showPlaceholders();
    fillLanguageCombo();
    applyBrandTexts();
}

void WindowLogin::userEditIndexChanged(int index)
{
    if (index < 0 || index >= logins_.size())
        return;
    const LoginRecord& login = logins_.at(index);
    ui_->lineEdit_password->setText(login.password);
    ui_->checkBox->setChecked(login.isremember);
    if (login.language >= 0 && login.language < languageCombo_->count())
        languageCombo_->setCurrentIndex(login.language);
}

void WindowLogin::minimize()
{
    if (minimized_)
        return;
    minimized_ = true;
    setWindowState(Qt::WindowMinimized);
}

void WindowLogin::fullScreen()
{
    if (!normalScreen_)
        return;
    normalScreen_ = false;
    setWindowState(Qt::WindowMaximized);
}

void WindowLogin::normalScreen()
{
    if (normalScreen_)
        return;
    normalScreen_ = true;
    setWindowState(Qt::WindowNoState);
}

// A window manager may put its own frame around the window first and move it afterwards; asked in
// between, it gives the corner of the screen, and never corrects that: menus would open, and drags
// begin, in the wrong place. Asking for the place again makes it tell.
void WindowLogin::moveEvent(QMoveEvent* event)
{
    QMainWindow::moveEvent(event);
    if (isPlaced_ || !event->spontaneous())
        return;
    isPlaced_ = true;
    if (event->pos().isNull())
        windowHandle()->setPosition(event->oldPos());
}

void WindowLogin::showEvent(QShowEvent* event)
{
    minimized_ = false; // back from the task bar
    QMainWindow::showEvent(event);
}

void WindowLogin::changeEvent(QEvent* event)
{
    // A maximised frame that was minimised comes back in no state at all.
    if (event->type() == QEvent::WindowStateChange && !minimized_ && !normalScreen_
        && windowState() != Qt::WindowMaximized)
        setWindowState(Qt::WindowMaximized);
    QMainWindow::changeEvent(event);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/mainwindow.h"
#include "cloud/accountnotice.h"
#include "cloud/userservice.h"
#include "gate.h"
#include "testmain.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTextDocument>
#include <QWheelEvent>

class TestGate final : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void emptyLoginListLeavesBoxEmptyAndLanguageEnglish();
    void loginWithoutRememberRestoresNameAndLanguageOnly();
    void rememberedLoginFillsEveryField();
    void typingANameClearsTheFilledInPassword();
    void pickingARememberedLoginBringsItsPassword();
    void itemsBringTheirOwnPasswordAfterASignIn();
    void typedNameNeverBecomesAnItem();

    void returnSignsInFromTheNameField();
    void returnSignsInFromThePasswordField();
    void keypadEnterDoesNothing();
    void loginButtonSignsInOnPress();
    void missingNameOrPasswordIsToldAndSavesNothing();
    void signInSaysThatItIsUnderWay();
    void failedCloudLoginStaysOnTopOfTheList();
    void errorsOfOtherOperationsAreDropped();

    void localLoginOpensTheMainFrameAndSavesNothing();
    void lateCloudAnswerBuildsNoSecondFrame();

    void eyeTogglesEchoAndPicture();
    void closeLabelChangesItsPicture();
    void fieldFocusChangesBorderBarAndIcon();
    void accountPagesOpenAndLeadBack();
    void labelButtonsActOnSpace();
    void fieldsHaveNoContextMenu();
    void heldReturnSignsInOnce();
    void pickingTheCurrentItemBringsItsPasswordBack();
    void mouseWheelChangesNeitherAccountNorLanguage();
    void partsHaveAccessibleNames();
    void htmlInAMessageIsShownAsText();
    void languageListStandsCentredOnItsBox();

    void brandSetsLogoAndButton_data();
    void brandSetsLogoAndButton();
    void secondWindowStaysEmpty();

    void longUserNameSurvivesTheGate();
    void storedLanguageOfTwelveStartsInEnglish();
    void damagedSettingsStartTheGateAndStayAsTheyAre();
};

void TestGate::init()
{
    // An answer to the test before may still be on its way.
    QCoreApplication::processEvents();
    clearSettings();
}

void TestGate::emptyLoginListLeavesBoxEmptyAndLanguageEnglish()
{
    const Gate gate;
    QCOMPARE(gate.user()->count(), 0);
    QCOMPARE(gate.user()->currentText(), QString());
    QVERIFY(!gate.part<QCheckBox>("checkBox")->isChecked());
    QCOMPARE(gate.language()->currentIndex(), int(SystemInfo::English));
    QCOMPARE(SystemInfo::instance()->getLanguage(), SystemInfo::English);
}

void TestGate::loginWithoutRememberRestoresNameAndLanguageOnly()
{
    LocalStore::instance()->saveLogin("anna", "secret", false, SystemInfo::Dutch);
    const Gate gate;
    QCOMPARE(gate.user()->currentText(), QString("anna"));
    QCOMPARE(gate.password()->text(), QString());
    QVERIFY(!gate.part<QCheckBox>("checkBox")->isChecked());
    QCOMPARE(SystemInfo::instance()->getLanguage(), SystemInfo::Dutch);
}

void TestGate::rememberedLoginFillsEveryField()
{
    LocalStore::instance()->saveLogin("bert", "other", true, SystemInfo::French);
    LocalStore::instance()->saveLogin("anna", "secret", true, SystemInfo::Japanese);
    const Gate gate;
    QCOMPARE(gate.user()->count(), 2);
    QCOMPARE(gate.user()->currentText(), QString("anna"));
    QCOMPARE(gate.password()->text(), QString("secret"));
    QVERIFY(gate.part<QCheckBox>("checkBox")->isChecked());
    QCOMPARE(gate.language()->currentIndex(), int(SystemInfo::Japanese));
}

void TestGate::typingANameClearsTheFilledInPassword()
{
    LocalStore::instance()->saveLogin("anna", "secret", true, 0);
    const Gate gate;
    gate.focus(gate.user());
    QTest::keyClicks(gate.user(), "b");
    QCOMPARE(gate.password()->text(), QString());
    QCOMPARE(gate.user()->currentText().size(), 5);
}

void TestGate::pickingARememberedLoginBringsItsPassword()
{
    LocalStore::instance()->saveLogin("bert", "other", false, SystemInfo::German);
    LocalStore::instance()->saveLogin("anna", "secret", true, SystemInfo::English);
    const Gate gate;
    gate.user()->showPopup();
    QAbstractItemView* list = gate.user()->view();
    QTRY_VERIFY(list->isVisible());
    const QRect row = list->visualRect(list->model()->index(1, 0));
    // A click right after the list opened counts as the one that opened it.
    QTest::qWait(QApplication::doubleClickInterval());
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, row.center());
    QTRY_COMPARE(gate.user()->currentText(), QString("bert"));
    QCOMPARE(gate.password()->text(), QString("other"));
    QVERIFY(!gate.part<QCheckBox>("checkBox")->isChecked());
    QCOMPARE(SystemInfo::instance()->getLanguage(), SystemInfo::German);
}

void TestGate::itemsBringTheirOwnPasswordAfterASignIn()
{
    LocalStore::instance()->saveLogin("bert", "other", true, 0);
    LocalStore::instance()->saveLogin("anna", "secret", true, 0);
    const Gate gate;
    gate.user()->setCurrentIndex(1);
    gate.press("pushButton_login"); // bert is now the newest record
    QCOMPARE(gate.user()->currentText(), QString("bert"));
    QCOMPARE(gate.password()->text(), QString("other"));
    for (int i = 0; i < gate.user()->count(); ++i) {
        gate.user()->setCurrentIndex(i);
        const bool anna = gate.user()->currentText() == QLatin1String("anna");
        QCOMPARE(gate.password()->text(), QString(anna ? "secret" : "other"));
    }
}

void TestGate::typedNameNeverBecomesAnItem()
{
    const Gate gate;
    gate.focus(gate.user());
    QTest::keyClicks(gate.user(), "clara");
    QTest::keyClick(gate.user(), Qt::Key_Return);
    QCOMPARE(gate.user()->count(), 0);
}

void TestGate::returnSignsInFromTheNameField()
{
    const Gate gate;
    gate.focus(gate.user());
    QTest::keyClick(gate.user(), Qt::Key_Return);
    QCOMPARE(gate.message(), QString("Please enter the username."));
}

void TestGate::returnSignsInFromThePasswordField()
{
    const Gate gate;
    gate.focus(gate.user());
    QTest::keyClicks(gate.user(), "anna");
    gate.focus(gate.password());
    QTest::keyClicks(gate.password(), "secret");
    QTest::keyClick(gate.password(), Qt::Key_Return);
    QCOMPARE(LocalStore::instance()->loadLogins().size(), 1);
}

void TestGate::keypadEnterDoesNothing()
{
    const Gate gate;
    gate.focus(gate.user());
    QTest::keyClicks(gate.user(), "anna");
    gate.focus(gate.password());
    QTest::keyClicks(gate.password(), "secret");
    QTest::keyClick(gate.password(), Qt::Key_Enter, Qt::KeypadModifier);
    gate.focus(gate.user());
    QTest::keyClick(gate.user(), Qt::Key_Enter, Qt::KeypadModifier);
    QVERIFY(LocalStore::instance()->loadLogins().isEmpty());
    QCOMPARE(gate.message(), QString());
}

void TestGate::loginButtonSignsInOnPress()
{
    const Gate gate;
    QTest::mousePress(gate.part("pushButton_login"), Qt::LeftButton);
    QCOMPARE(gate.message(), QString("Please enter the username."));
}

void TestGate::missingNameOrPasswordIsToldAndSavesNothing()
{
    const Gate gate;
    gate.press("pushButton_login");
    QCOMPARE(gate.message(), QString("Please enter the username."));
    gate.user()->setEditText("anna");
    gate.press("pushButton_login");
    QCOMPARE(gate.message(), QString("Please enter the password."));
    QVERIFY(LocalStore::instance()->loadLogins().isEmpty());
}

void TestGate::signInSaysThatItIsUnderWay()
{
    const Gate gate;
    gate.user()->setEditText("anna");
    gate.password()->setText("secret");
    gate.press("pushButton_login");
    auto* button = gate.part<QPushButton>("pushButton_login");
    QCOMPARE(button->text(), QString("Signing in, please wait..."));
    QCOMPARE(gate.message(), QString());
    QTRY_COMPARE(button->text(), QString("Login"));
}

void TestGate::failedCloudLoginStaysOnTopOfTheList()
{
    LocalStore::instance()->saveLogin("bert", "other", true, 0);
    const Gate gate;
    QSignalSpy errors(UserService::instance(), &UserService::responseErrorMsg);
    gate.user()->setEditText("anna");
    gate.password()->setText("wrong");
    gate.part<QCheckBox>("checkBox")->setChecked(true);
    gate.press("pushButton_login");
    QVERIFY(errors.wait());
    QCOMPARE(errors.first().at(0).toString(), QString("login"));
    QCOMPARE(gate.message(),
        QString("[Network Error]:(0)No cloud address is configured; use Local Login."));
    const auto logins = LocalStore::instance()->loadLogins();
    QCOMPARE(logins.size(), 2);
    QCOMPARE(logins.first().username, QString("anna"));
    QCOMPARE(logins.first().password, QString("wrong"));
    QVERIFY(logins.first().isremember);
    QVERIFY(gate.window.mainWindow() == nullptr);
}

void TestGate::errorsOfOtherOperationsAreDropped()
{
    const Gate gate;
    emit UserService::instance()->responseErrorMsg("registerUser", "Server Error", 5, "text");
    QCOMPARE(gate.message(), QString());
    emit UserService::instance()->responseErrorMsg("login", "Server Error", 111, "Error password");
    QCOMPARE(gate.message(), QString("[Server Error]:(111)Error password"));
}

void TestGate::localLoginOpensTheMainFrameAndSavesNothing()
{
    const Gate gate;
    gate.press("widget_localLogin");
    QVERIFY(gate.window.mainWindow() != nullptr);
    QTRY_VERIFY(gate.window.mainWindow()->isVisible());
    QVERIFY(!gate.part("widget_loginPage")->isVisible());
    QCOMPARE(gate.window.size(), QSize(1080, 720));
    QCOMPARE(gate.window.windowFlags() & Qt::FramelessWindowHint, Qt::FramelessWindowHint);
    const User& user = UserService::instance()->user();
    QCOMPARE(user.username, QString("Admin"));
    QCOMPARE(user.password, QString());
    QVERIFY(user.localMode);
    QVERIFY(LocalStore::instance()->loadLogins().isEmpty());
    QVERIFY(!QFile::exists(LocalStore::instance()->currentPath()));
}

void TestGate::lateCloudAnswerBuildsNoSecondFrame()
{
    const Gate gate;
    gate.press("widget_localLogin");
    const MainWindow* frame = gate.window.mainWindow();
    emit UserService::instance()->logined();
    QCOMPARE(gate.window.mainWindow(), frame);
    QCOMPARE(gate.window.findChildren<MainWindow*>().size(), 1);
}

void TestGate::eyeTogglesEchoAndPicture()
{
    const Gate gate;
    const auto* eye = gate.part<QLabel>("label_eye");
    QCOMPARE(gate.password()->echoMode(), QLineEdit::Password);
    gate.press("label_eye");
    QCOMPARE(gate.password()->echoMode(), QLineEdit::Normal);
    QVERIFY(shows(eye, "btn_login_visible"));
    gate.press("label_eye");
    QCOMPARE(gate.password()->echoMode(), QLineEdit::Password);
    QVERIFY(shows(eye, "btn_login_invisible"));
}

void TestGate::closeLabelChangesItsPicture()
{
    Gate gate;
    auto* close = gate.part<QLabel>("label_close");
    QEvent enter(QEvent::Enter);
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(close, &enter);
    QVERIFY(shows(close, "btn_close_pre"));
    gate.press("label_close");
    QVERIFY(shows(close, "btn_close"));
    QCoreApplication::sendEvent(close, &leave);
    QVERIFY(shows(close, "btn_login_close_nor"));
    QTest::mouseRelease(close, Qt::LeftButton);
    QTRY_VERIFY(!gate.window.isVisible());
}

void TestGate::fieldFocusChangesBorderBarAndIcon()
{
    const Gate gate;
    const QString frame = "border-width:1px;border-style:solid;border-radius:4px;border-color: %1;";
    gate.focus(gate.password());
    QCOMPARE(gate.password()->styleSheet(), frame.arg("#aaa"));
    QVERIFY(gate.part("widget_passwordBar")->isVisible());
    QVERIFY(shows(gate.part<QLabel>("label_lockIcon"), "login_lock-on"));
    gate.focus(gate.user());
    QCOMPARE(gate.password()->styleSheet(), frame.arg("rgb(204, 204, 204)"));
    QCOMPARE(gate.user()->styleSheet(), frame.arg("#aaa"));
    QVERIFY(!gate.part("widget_passwordBar")->isVisible());
    QVERIFY(gate.part("widget_userBar")->isVisible());
    QVERIFY(shows(gate.part<QLabel>("label_lockIcon"), "login_lock"));
}

void TestGate::accountPagesOpenAndLeadBack()
{
    const Gate gate;
    const auto pages = gate.window.findChildren<AccountNotice*>();
    QCOMPARE(pages.size(), 2);
    for (const char* link : {"label_register", "label_forget"}) {
        gate.press(link);
        QVERIFY(!gate.part("widget_loginPanel")->isVisible());
        AccountNotice* page = pages.at(link == QLatin1String("label_register") ? 0 : 1);
        QVERIFY(page->isVisible());
        QTest::mousePress(page->findChild<QLabel*>("label_back"), Qt::LeftButton);
        QVERIFY(!page->isVisible());
        QVERIFY(gate.part("widget_loginPanel")->isVisible());
    }
}

void TestGate::labelButtonsActOnSpace()
{
    const Gate gate;
    gate.focus(gate.part("label_eye"));
    QTest::keyClick(gate.part("label_eye"), Qt::Key_Space);
    QCOMPARE(gate.password()->echoMode(), QLineEdit::Normal);
}

void TestGate::fieldsHaveNoContextMenu()
{
    const Gate gate;
    QCOMPARE(gate.user()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(gate.user()->lineEdit()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(gate.password()->contextMenuPolicy(), Qt::NoContextMenu);
}

void TestGate::heldReturnSignsInOnce()
{
    const Gate gate;
    gate.user()->setEditText("anna");
    gate.password()->setText("secret");
    QSignalSpy errors(UserService::instance(), &UserService::responseErrorMsg);
    QKeyEvent first(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", false);
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QCoreApplication::sendEvent(gate.password(), &first);
    QCoreApplication::sendEvent(gate.password(), &repeated);
    QCoreApplication::processEvents();
    QCOMPARE(errors.size(), 1);
}

void TestGate::pickingTheCurrentItemBringsItsPasswordBack()
{
    LocalStore::instance()->saveLogin("anna", "secret", true, 0);
    const Gate gate;
    gate.user()->setEditText("anna2");
    QCOMPARE(gate.password()->text(), QString());
    gate.user()->setFocus();
    gate.user()->showPopup();
    QTRY_VERIFY(gate.user()->view()->isVisible());
    QTest::keyClick(gate.user()->view(), Qt::Key_Return);
    QTRY_COMPARE(gate.user()->currentText(), QString("anna"));
    QCOMPARE(gate.password()->text(), QString("secret"));
}

void TestGate::mouseWheelChangesNeitherAccountNorLanguage()
{
    LocalStore::instance()->saveLogin("bert", "other", true, 0);
    LocalStore::instance()->saveLogin("anna", "secret", true, 0);
    const Gate gate;
    for (LoginComboBox* box : {gate.user(), gate.language()}) {
        const int before = box->currentIndex();
        QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPoint(5, 5)), {}, QPoint(0, -120),
            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(box, &wheel);
        QCOMPARE(box->currentIndex(), before);
    }
}

void TestGate::partsHaveAccessibleNames()
{
    const Gate gate;
    for (const char* name :
        {"comboBox_user", "lineEdit_password", "widget_localLogin", "label_eye", "label_close"})
        QVERIFY2(!gate.part(name)->accessibleName().isEmpty(), name);
}

void TestGate::htmlInAMessageIsShownAsText()
{
    const Gate gate;
    emit UserService::instance()->responseErrorMsg("login", "Server Error", 1, "<img src=x>");
    QCOMPARE(gate.message(), QString("[Server Error]:(1)<img src=x>"));
    QTextDocument hint;
    hint.setHtml(gate.part("label_message")->toolTip());
    QCOMPARE(hint.toPlainText(), gate.message());
}

void TestGate::languageListStandsCentredOnItsBox()
{
    const Gate gate;
    gate.language()->showPopup();
    const QWidget* list = gate.language()->view()->parentWidget();
    QTRY_VERIFY(list->isVisible());
    QCOMPARE(list->width(), gate.language()->width());
    QCOMPARE(list->x(), gate.language()->mapToGlobal(QPoint()).x());
    gate.language()->hidePopup();
}

void TestGate::brandSetsLogoAndButton_data()
{
    QTest::addColumn<int>("brand");
    QTest::addColumn<QString>("logo");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("button");
    QTest::newRow("0") << 0 << "login_kelo.png" << QSize(140, 44) << "rgb(217, 77, 86)";
    QTest::newRow("149") << 149 << "BRISEN-HD-logo.png" << QSize(150, 60) << "#EE7600";
    QTest::newRow("150") << 150 << "fenrad_login.png" << QSize(120, 29) << "#4d2875";
    QTest::newRow("151") << 151 << QString() << QSize(80, 80) << "#307dc1";
}

void TestGate::brandSetsLogoAndButton()
{
    QFETCH(int, brand);
    QFETCH(QString, logo);
    QFETCH(QSize, size);
    QFETCH(QString, button);
    Gate gate;
    gate.window.setBrand(brand);
    const auto* label = gate.part<QLabel>("label_logo");
    QCOMPARE(label->size(), size);
    QCOMPARE(label->x(), gate.user()->x());
    if (logo.isEmpty())
        QCOMPARE(label->pixmap(Qt::ReturnByValue).size(), size);
    else
        QVERIFY(label->styleSheet().contains(logo));
    QVERIFY(gate.part("pushButton_login")->styleSheet().contains("background-color: " + button));
}

void TestGate::secondWindowStaysEmpty()
{
    const Gate gate;
    WindowLogin second;
    second.setBrand(149);
    QVERIFY(second.findChildren<QWidget*>().isEmpty());
}

void TestGate::longUserNameSurvivesTheGate()
{
    const QString name = QString("\"quoted\"\n=[section];").repeated(500).left(10000);
    LocalStore::instance()->saveLogin(name, "secret", true, 0);
    {
        const Gate gate;
        QCOMPARE(gate.window.size(), QSize(860, 540));
        QCOMPARE(gate.user()->count(), 1);
        QCOMPARE(gate.password()->text(), QString("secret"));
        gate.press("pushButton_login");
        QTRY_VERIFY(!gate.message().isEmpty());
    }
    LocalStore::instance()->saveLogin(QString::fromUtf8("наблюдатель 📷"), "x", true, 0);
    const Gate again;
    QVERIFY(again.user()->count() >= 2);
}

void TestGate::storedLanguageOfTwelveStartsInEnglish()
{
    LocalStore::instance()->saveLogin("anna", "secret", true, 12);
    const Gate gate;
    QCOMPARE(gate.user()->currentText(), QString("anna"));
    QCOMPARE(gate.language()->currentIndex(), int(SystemInfo::English));
}

void TestGate::damagedSettingsStartTheGateAndStayAsTheyAre()
{
    const QByteArray damage = QByteArrayLiteral("[login]\nsize=1000000\n1\\user\0name");
    QFile file(LocalStore::instance()->currentPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(damage);
    file.close();
    const Gate gate;
    gate.user()->setEditText("anna");
    gate.password()->setText("secret");
    gate.press("pushButton_login");
    QTRY_VERIFY(!gate.message().isEmpty());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), damage);
}

ORVA_TEST(TestGate)
#include "tst_gate.moc"

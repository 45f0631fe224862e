// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/userservice.h"
#include "store/deployment.h"
#include "testmain.h"

#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

class TestUserService final : public QObject
{
    Q_OBJECT

private slots:
    void instanceIsOne();
    void settersStoreWhatTheLoginWindowKnows();
    void loginWithoutACloudEndsInAnError();
    void errorNeverComesBeforeLoginHasReturned();
    void everyLoginEndsOnce();
    void loginChangesNothingOfTheUser();
    void errorTextsAreTranslated();
};

namespace {

class Marker final : public QTranslator
{
public:
    Marker() { QCoreApplication::installTranslator(this); }
    ~Marker() override { QCoreApplication::removeTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return QString("<%1:%2>").arg(QString(context), QString(text));
    }
};

} // namespace

void TestUserService::instanceIsOne()
{
    UserService* const service = UserService::instance();
    QVERIFY(service != nullptr);
    QCOMPARE(UserService::instance(), service);
}

void TestUserService::settersStoreWhatTheLoginWindowKnows()
{
    UserService* service = UserService::instance();
    service->setUsername("somebody");
    service->setPassword("secret");
    service->setLocalMode(true);
    QCOMPARE(service->user().username, QString("somebody"));
    QCOMPARE(service->user().password, QString("secret"));
    QCOMPARE(service->user().localMode, true);
    QCOMPARE(service->user().displayName(), QString("someb..."));
    service->setLocalMode(false);
    QCOMPARE(service->user().localMode, false);
}

void TestUserService::loginWithoutACloudEndsInAnError()
{
    QVERIFY(Deployment::instance().cloudBaseUrl.isEmpty());
    UserService* service = UserService::instance();
    QSignalSpy errors(service, &UserService::responseErrorMsg);
    const QSignalSpy logins(service, &UserService::logined);
    service->login();
    QTRY_COMPARE(errors.count(), 1);
    const QList<QVariant> error = errors.first();
    QCOMPARE(error.at(0).toString(), QString("login"));
    QVERIFY(!error.at(1).toString().isEmpty());
    QCOMPARE(error.at(2).toInt(), 0);
    QVERIFY(!error.at(3).toString().isEmpty());
    QCOMPARE(logins.count(), 0);
}

void TestUserService::errorNeverComesBeforeLoginHasReturned()
{
    UserService* service = UserService::instance();
    bool returned = false;
    bool early = false;
    bool answered = false;
    const auto connection = connect(service, &UserService::responseErrorMsg, this, [&] {
        early = !returned;
        answered = true;
    });
    service->login();
    QVERIFY(!answered);
    returned = true;
    QTRY_VERIFY(answered);
    QVERIFY(!early);
    disconnect(connection);
}

void TestUserService::everyLoginEndsOnce()
{
    UserService* service = UserService::instance();
    const QSignalSpy errors(service, &UserService::responseErrorMsg);
    service->login();
    service->login();
    service->login();
    QTRY_COMPARE(errors.count(), 3);
    QCoreApplication::processEvents();
    QCOMPARE(errors.count(), 3);
}

void TestUserService::loginChangesNothingOfTheUser()
{
    UserService* service = UserService::instance();
    service->setUsername("somebody");
    service->setPassword("secret");
    const QSignalSpy errors(service, &UserService::responseErrorMsg);
    service->login();
    QTRY_COMPARE(errors.count(), 1);
    QCOMPARE(service->user().username, QString("somebody"));
    QCOMPARE(service->user().password, QString("secret"));
    QCOMPARE(service->user().access_token, QString());
    QCOMPARE(service->user().userID, QString());
}

void TestUserService::errorTextsAreTranslated()
{
    const Marker marker;
    UserService* service = UserService::instance();
    QSignalSpy errors(service, &UserService::responseErrorMsg);
    service->login();
    QTRY_COMPARE(errors.count(), 1);
    QCOMPARE(errors.first().at(0).toString(), QString("login"));
    QVERIFY(errors.first().at(1).toString().startsWith("<UserService:"));
    QVERIFY(errors.first().at(3).toString().startsWith("<UserService:"));
}

ORVA_TEST(TestUserService)

#include "tst_userservice.moc"

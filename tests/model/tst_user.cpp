// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/user.h"
#include "testmain.h"

#include <QTest>

class TestUser final : public QObject
{
    Q_OBJECT

private slots:
    void freshUserIsEmptyAndInCloudMode();
    void displayNameIsTheFirstNonEmptyName_data();
    void displayNameIsTheFirstNonEmptyName();
    void sixCharactersStayWhole();
    void sevenCharactersAreCutToFive();
    void everyKindOfNameIsCut();
    void blankNickNameCountsAsAName();
    void cutLeavesNoHalfCharacter();
};

void TestUser::freshUserIsEmptyAndInCloudMode()
{
    const User user;
    for (const QString& text : {user.userID, user.access_token, user.refresh_token, user.username,
             user.password, user.userIconUrl, user.NickName, user.userEmail, user.phone})
        QCOMPARE(text, QString());
    QCOMPARE(user.refresh_expire, 0);
    QCOMPARE(user.access_expire, 0);
    QCOMPARE(user.localMode, false);
    QCOMPARE(user.displayName(), QString());
}

void TestUser::displayNameIsTheFirstNonEmptyName_data()
{
    QTest::addColumn<QString>("nickName");
    QTest::addColumn<QString>("username");
    QTest::addColumn<QString>("phone");
    QTest::addColumn<QString>("email");
    QTest::addColumn<QString>("shown");

    QTest::newRow("nick name") << "nick"
                               << "user"
                               << "12345"
                               << "a@b.c"
                               << "nick";
    QTest::newRow("user name") << ""
                               << "user"
                               << "12345"
                               << "a@b.c"
                               << "user";
    QTest::newRow("phone before e-mail") << ""
                                         << ""
                                         << "12345"
                                         << "a@b.c"
                                         << "12345";
    QTest::newRow("e-mail") << ""
                            << ""
                            << ""
                            << "a@b.c"
                            << "a@b.c";
    QTest::newRow("nick name and e-mail") << "nick"
                                          << ""
                                          << ""
                                          << "a@b.c"
                                          << "nick";
}

void TestUser::displayNameIsTheFirstNonEmptyName()
{
    QFETCH(QString, nickName);
    QFETCH(QString, username);
    QFETCH(QString, phone);
    QFETCH(QString, email);
    User user;
    user.NickName = nickName;
    user.username = username;
    user.phone = phone;
    user.userEmail = email;
    QTEST(user.displayName(), "shown");
}

void TestUser::sixCharactersStayWhole()
{
    User user;
    user.NickName = "abcdef";
    QCOMPARE(user.displayName(), QString("abcdef"));
}

void TestUser::sevenCharactersAreCutToFive()
{
    User user;
    user.NickName = "abcdefg";
    QCOMPARE(user.displayName(), QString("abcde..."));
}

void TestUser::everyKindOfNameIsCut()
{
    User user;
    user.userEmail = "somebody@example.com";
    QCOMPARE(user.displayName(), QString("someb..."));
    user.phone = "+49123456789";
    QCOMPARE(user.displayName(), QString("+4912..."));
    user.username = "administrator";
    QCOMPARE(user.displayName(), QString("admin..."));
    QCOMPARE(user.username, QString("administrator"));
}

void TestUser::blankNickNameCountsAsAName()
{
    User user;
    user.NickName = " ";
    user.username = "user";
    QCOMPARE(user.displayName(), QString(" "));
}

// The fifth unit of this name is the first half of a pair.
void TestUser::cutLeavesNoHalfCharacter()
{
    User user;
    user.NickName = QString::fromUtf8("abcd\xF0\x9F\x98\x80"
                                      "efgh");
    QVERIFY(user.displayName().endsWith("..."));
    QVERIFY(user.displayName().isValidUtf16());
}

ORVA_TEST(TestUser)

#include "tst_user.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "commandline.h"
#include "newuid.h"
#include "testmain.h"
#include "wire/uid.h"

#include <QTest>

class TestCommandLine final : public QObject
{
    Q_OBJECT

private slots:
    void argumentsNameAnAction_data();
    void argumentsNameAnAction();
    void newUidsHaveTheFormAndDiffer();
};

void TestCommandLine::argumentsNameAnAction_data()
{
    using Action = CommandLine::Action;
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("action");
    const auto row = [](const QStringList& arguments, Action action) {
        QTest::newRow(qPrintable(arguments.join(' '))) << arguments << static_cast<int>(action);
    };
    row({"--help"}, Action::Help);
    row({"--version"}, Action::Version);
    row({"--new-uid"}, Action::NewUid);
    row({"--config", "a"}, Action::Serve);
    row({"--config", "a", "--check-config"}, Action::CheckConfig);
    row({"--check-config", "--config", "a"}, Action::CheckConfig);
    row({}, Action::Wrong);
    row({"--config"}, Action::Wrong);
    row({"--check-config"}, Action::Wrong);
    row({"--config", "a", "--config", "b"}, Action::Wrong);
    row({"--help", "--version"}, Action::Wrong);
    row({"--config", "a", "b"}, Action::Wrong);
    row({"a"}, Action::Wrong);
    row({""}, Action::Wrong);
}

void TestCommandLine::argumentsNameAnAction()
{
    QFETCH(QStringList, arguments);
    std::vector<std::string> plain;
    for (const QString& argument : arguments)
        plain.push_back(argument.toStdString());
    const CommandLine line = parseCommandLine(plain);
    QTEST(static_cast<int>(line.action), "action");
    QCOMPARE(line.problem.empty(), line.action != CommandLine::Action::Wrong);
    if (!line.configPath.empty() && line.problem.empty())
        QCOMPARE(line.configPath, std::string("a"));
}

void TestCommandLine::newUidsHaveTheFormAndDiffer()
{
    const std::string first = newUid();
    QVERIFY(isUid(first));
    QVERIFY(newUid() != first);
}

ORVA_TEST(TestCommandLine)
#include "tst_commandline.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/debugrecord.h"
#include "app/messagehandler.h"
#include "app/systeminfo.h"
#include "testmain.h"

#include <QListView>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>
#include <QTextCodec>
#include <QtConcurrent>

#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

class TestDebugLog final : public QObject
{
    Q_OBJECT

private slots:
    void recordBeginsWithItsStartLine();
    void linesBeforeTheWindowAreNotShown();
    void everyTypeHasItsPrefix_data();
    void everyTypeHasItsPrefix();
    void typeAboveFourAddsNoLine();
    void workerMessagesArriveInPostingOrder();
    void charactersOutsideTheLocalEncodingAreLostInBoth();
    void standardErrorHasOneLinePerMessage();
    void fatalMessageAbortsTheProcess();
    void oldestLinesGoPastTheLimit();
    void listFollowsItsEndOnlyWhileItIsThere();
    void longAndBrokenLinesStayReadable();
};

namespace {

// Installs the program's handler for one scope.
class Handler
{
public:
    Handler()
        : before_(qInstallMessageHandler(debugMessageHandler))
    {
        SystemInfo::instance();
    }
    ~Handler() { qInstallMessageHandler(before_); }

private:
    const QtMessageHandler before_;
};

// What `work` writes to standard error.
template <typename Work>
QByteArray standardErrorOf(Work work)
{
    QTemporaryFile file;
    if (!file.open())
        return "no temporary file";
    fflush(stderr);
    const int saved = dup(STDERR_FILENO);
    dup2(file.handle(), STDERR_FILENO);
    work();
    fflush(stderr);
    dup2(saved, STDERR_FILENO);
    close(saved);
    file.seek(0);
    return file.readAll();
}

} // namespace

void TestDebugLog::recordBeginsWithItsStartLine()
{
    const DebugRecord record;
    QCOMPARE(record.windowTitle(), QString("Debug Record"));
    QCOMPARE(record.lines(), QStringList("[START]Debug mod is working,Waiting to record"));
}

void TestDebugLog::linesBeforeTheWindowAreNotShown()
{
    emit SystemInfo::instance()->debugMsg(QtDebugMsg, "too early");
    const DebugRecord record;
    QCOMPARE(record.lines().size(), 1);
}

void TestDebugLog::everyTypeHasItsPrefix_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("prefix");
    QTest::newRow("debug") << int(QtDebugMsg) << "[DEBUG-";
    QTest::newRow("warning") << int(QtWarningMsg) << "[WARNING-";
    QTest::newRow("critical") << int(QtCriticalMsg) << "[CRITICAL-";
    QTest::newRow("fatal") << int(QtFatalMsg) << "[FATAL-";
    QTest::newRow("info") << int(QtInfoMsg) << "[INFO-";
}

void TestDebugLog::everyTypeHasItsPrefix()
{
    QFETCH(int, type);
    QFETCH(QString, prefix);
    DebugRecord record;
    record.showDebug(static_cast<QtMsgType>(type), "the text");
    const QRegularExpression form(
        QRegularExpression::escape(prefix) + R"(\d\d:\d\d:\d\d\]the text)");
    const QString line = record.lines().last();
    QVERIFY2(QRegularExpression(QRegularExpression::anchoredPattern(form.pattern()))
                 .match(line)
                 .hasMatch(),
        qUtf8Printable(line));
}

void TestDebugLog::typeAboveFourAddsNoLine()
{
    DebugRecord record;
    record.showDebug(static_cast<QtMsgType>(5), "the text");
    QCOMPARE(record.lines().size(), 1);
}

void TestDebugLog::workerMessagesArriveInPostingOrder()
{
    const DebugRecord record;
    const Handler handler;
    constexpr int count = 200;
    standardErrorOf([] {
        QtConcurrent::run([] {
            for (int i = 0; i < count; ++i)
                qInfo("line %d", i);
        }).waitForFinished();
    });
    QCOMPARE(record.lines().size(), 1); // through the event loop, not before it
    QTRY_COMPARE(record.lines().size(), count + 1);
    for (int i = 0; i < count; ++i)
        QVERIFY(record.lines().at(i + 1).endsWith(QString("]line %1").arg(i)));
}

void TestDebugLog::charactersOutsideTheLocalEncodingAreLostInBoth()
{
    QTextCodec* const before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("ISO-8859-1"));
    const DebugRecord record;
    QByteArray written;
    {
        const Handler handler;
        written =
            standardErrorOf([] { qWarning("%ls", qUtf16Printable(QString::fromUtf8("a日é"))); });
    }
    QTRY_COMPARE(record.lines().size(), 2);
    QTextCodec::setCodecForLocale(before);
    QCOMPARE(written, QByteArray("Warning: a?\xe9\n"));
    QVERIFY(record.lines().last().endsWith(QString::fromUtf8("]a?é")));
}

void TestDebugLog::standardErrorHasOneLinePerMessage()
{
    const Handler handler;
    const QByteArray written = standardErrorOf([] {
        qDebug("one");
        qInfo("two");
        qWarning("three");
        qCritical("four %%s");
    });
    QCOMPARE(written, QByteArray("Debug: one\nInfo: two\nWarning: three\nCritical: four %s\n"));
}

void TestDebugLog::fatalMessageAbortsTheProcess()
{
    int status = 0;
    const QByteArray written = standardErrorOf([&status] {
        const pid_t child = fork();
        if (child == 0) {
            qInstallMessageHandler(debugMessageHandler);
            debugMessageHandler(QtFatalMsg, {}, QStringLiteral("no memory"));
            _exit(0);
        }
        waitpid(child, &status, 0);
    });
    QVERIFY(WIFSIGNALED(status));
    QCOMPARE(WTERMSIG(status), SIGABRT);
    QVERIFY(written.startsWith("Fatal: no memory\n"));
}

void TestDebugLog::oldestLinesGoPastTheLimit()
{
    DebugRecord record;
    for (int i = 0; i < DebugRecord::maxLines + 5; ++i)
        record.showDebug(QtInfoMsg, QString::number(i));
    QCOMPARE(record.lines().size(), int(DebugRecord::maxLines));
    QVERIFY(record.lines().first().endsWith("]5"));
    QVERIFY(record.lines().last().endsWith(QString("]%1").arg(DebugRecord::maxLines + 4)));
}

void TestDebugLog::listFollowsItsEndOnlyWhileItIsThere()
{
    DebugRecord record;
    record.resize(400, 200);
    record.show();
    QVERIFY(QTest::qWaitForWindowExposed(&record));
    const auto* list = record.findChild<QListView*>();
    for (int i = 0; i < 100; ++i)
        record.showDebug(QtInfoMsg, QString::number(i));
    QTRY_VERIFY(list->visualRect(list->model()->index(100, 0)).isValid());
    QTest::qWait(0);
    QVERIFY(list->visualRect(list->model()->index(100, 0)).intersects(list->viewport()->rect()));
    record.findChild<QListView*>()->scrollToTop();
    record.showDebug(QtInfoMsg, "one more");
    QCoreApplication::processEvents();
    QVERIFY(list->visualRect(list->model()->index(0, 0)).intersects(list->viewport()->rect()));
}

// One row each, reached by the scroll bar, whatever came before.
void TestDebugLog::longAndBrokenLinesStayReadable()
{
    DebugRecord record;
    record.resize(400, 200);
    record.show();
    QVERIFY(QTest::qWaitForWindowExposed(&record));
    const auto* list = record.findChild<QListView*>();
    const QString longLine(300, QLatin1Char('x'));
    record.showDebug(QtInfoMsg, longLine);
    record.showDebug(QtInfoMsg, "two\nlines");
    const int wanted = list->fontMetrics().horizontalAdvance(longLine);
    QTRY_VERIFY(list->horizontalScrollBar()->maximum() + list->viewport()->width() > wanted);
    QCOMPARE(list->visualRect(list->model()->index(2, 0)).height(),
        list->visualRect(list->model()->index(0, 0)).height());
    QVERIFY(record.lines().last().endsWith("]two\nlines"));
}

ORVA_TEST(TestDebugLog)
#include "tst_debuglog.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"
#include "faultyshaders.h"
#include "testmain.h"
#include "tiletest.h"

#include <QOpenGLContext>
#include <QOpenGLDebugLogger>
#include <QOpenGLFunctions>
#include <QSignalSpy>
#include <QTest>

Q_DECLARE_METATYPE(ShaderFault)

// A tile's OpenGL context: what is made in it, how it fails, how it goes and is made anew.
class TestTileContext final : public QObject
{
    Q_OBJECT

private slots:
    void versionIsToldOnceForAllTiles();
    void onlyTheSettledTargetIsRefused();
    void shaderFailuresAreTold_data();
    void shaderFailuresAreTold();
    void failureIsToldInTheLanguageOfTheProgram();

    void tileThatWasNeverShownGoes();
    void tileGoesWithItsContext();
    void tileGoesWhileItsPictureWaits();
    void windowGoesWithItsTile();
    void nothingIsLeftOfATileThatWent();

    void pictureIsRightInAnotherWindow();
    void pictureIsRightInAWindowMadeAnew();
    void pictureIsRightAfterHiding();
};

namespace {

constexpr Yuv first{170, 90, 180};
constexpr Yuv second{90, 150, 60};

// Errors of OpenGL in a tile's context, which must have been asked for as one for debugging.
class ErrorRecord final
{
public:
    explicit ErrorRecord(GlWidgetViewWindow* tile)
        : tile_(tile)
    {
        tile->makeCurrent();
        if (!logger_.initialize())
            qFatal("the context tells no errors");
        QObject::connect(&logger_, &QOpenGLDebugLogger::messageLogged, &logger_,
            [this](const QOpenGLDebugMessage& message) {
                if (message.type() == QOpenGLDebugMessage::ErrorType)
                    errors.append(message.message());
            });
        logger_.startLogging(QOpenGLDebugLogger::SynchronousLogging);
        tile->doneCurrent();
    }
    ~ErrorRecord()
    {
        tile_->makeCurrent();
        logger_.stopLogging();
        tile_->doneCurrent();
    }
    Q_DISABLE_COPY_MOVE(ErrorRecord)

    QStringList errors;

private:
    GlWidgetViewWindow* tile_;
    QOpenGLDebugLogger logger_;
};

void askForErrors(GlWidgetViewWindow* tile)
{
    QSurfaceFormat format = tile->format();
    format.setOption(QSurfaceFormat::DebugContext);
    tile->setFormat(format);
}

// Names in use in the tile's share group.
int objectCount(GlWidgetViewWindow* tile)
{
    tile->makeCurrent();
    QOpenGLFunctions* gl = tile->context()->functions();
    int count = 0;
    for (GLuint name = 1; name < 2000; ++name) {
        count += gl->glIsTexture(name) != 0 ? 1 : 0;
        count += gl->glIsProgram(name) != 0 ? 1 : 0;
        count += gl->glIsShader(name) != 0 ? 1 : 0;
    }
    tile->doneCurrent();
    return count;
}

QString differencesOnScreen(const TileTest& t, Yuv colour, int number = 0)
{
    return differences(t.screen(number), t.visible(number), rgbOf(colour));
}

} // namespace

void TestTileContext::versionIsToldOnceForAllTiles()
{
    SystemInfo* info = SystemInfo::instance();
    info->setOpenGlVersion(QStringLiteral("another one"));
    QSignalSpy told(info, &SystemInfo::loadOpenGlVersionMsg);
    TileTest t(3);
    QVERIFY(t.show());
    QCOMPARE(told.size(), 1);
    t.tile()->makeCurrent();
    const auto* version =
        reinterpret_cast<const char*>(t.tile()->context()->functions()->glGetString(GL_VERSION));
    QCOMPARE(told.first().first().toString(), QString::fromLatin1(version));
    QCOMPARE(info->openGlVersion(), QString::fromLatin1(version));
    t.tile()->doneCurrent();
    GlWidgetViewWindow later(&t.window);
    later.resize(100, 100, 0, 0);
    later.show();
    QVERIFY(later.isValid());
    QCOMPARE(told.size(), 1);
}

void TestTileContext::onlyTheSettledTargetIsRefused()
{
    TileTest t(2);
    askForErrors(t.tile());
    QVERIFY(t.show());
    ErrorRecord record(t.tile());
    QVERIFY(t.tile()->grabFramebuffer().width() > 0);
    QCOMPARE(record.errors, QStringList());

    for (const QSize& size : {QSize(320, 180), QSize(427, 241), QSize(1, 1), QSize(2, 2)})
        t.decode(Picture(size, first));
    const QImage painted = t.painted();
    QVERIFY(!record.errors.isEmpty()); // one for each paint
    for (const QString& error : qAsConst(record.errors))
        QVERIFY2(error.contains(QLatin1String("glBindTexture")), qPrintable(error));

    record.errors.clear();
    t.tile()->resize(120, 100, 0, 0);
    t.tile()->cleanScreen(t.channel());
    t.tile()->grabFramebuffer();
    for (const QString& error : qAsConst(record.errors))
        QVERIFY2(error.contains(QLatin1String("glBindTexture")), qPrintable(error));
}

void TestTileContext::shaderFailuresAreTold_data()
{
    QTest::addColumn<ShaderFault>("fault");
    QTest::addColumn<QStringList>("told");
    const QString link = QStringLiteral("4 fail to link shaders");
    const QString bind = QStringLiteral("5 fail to bind shaders");
    QTest::newRow("vertex shader does not compile")
        << ShaderFault::BrokenVertex << QStringList{"0 fail to create vertex shader", link, bind};
    QTest::newRow("fragment shader does not compile")
        << ShaderFault::BrokenFragment
        << QStringList{"1 fail to create fragment shader", link, bind};
    QTest::newRow("vertex shader is not taken")
        << ShaderFault::RefusedVertex << QStringList{"2 fail to add vertex shader"};
    QTest::newRow("fragment shader is not taken")
        << ShaderFault::RefusedFragment << QStringList{"3 fail to add fragment shader"};
}

void TestTileContext::shaderFailuresAreTold()
{
    QFETCH(ShaderFault, fault);
    QFETCH(QStringList, told);
    TileTest t;
    const QSignalSpy messages(&t.viewControl, &ViewControl::glErrorMsg);
    {
        const FaultyShaders faulty(fault);
        QVERIFY(t.show());
    }
    QStringList lines;
    for (const QVariantList& one : messages)
        lines.append(one.first().toString() + QLatin1Char(' ') + one.last().toString());
    QCOMPARE(lines, told);

    t.decode(Picture(QSize(320, 180), first)); // is tried all the same
    const QImage painted = t.painted();
    QCOMPARE(painted.size(), t.tile()->size());
    if (fault == ShaderFault::RefusedVertex || fault == ShaderFault::RefusedFragment)
        QCOMPARE(differences(painted, t.inner(), rgbOf(first)), QString());
    QCOMPARE(messages.size(), told.size());
}

void TestTileContext::failureIsToldInTheLanguageOfTheProgram()
{
    TileTest t;
    const QSignalSpy messages(&t.viewControl, &ViewControl::glErrorMsg);
    const FaultyShaders faulty(ShaderFault::RefusedVertex);
    SystemInfo::instance()->setLanguage(SystemInfo::German);
    const bool shown = t.show();
    SystemInfo::instance()->setLanguage(SystemInfo::English);
    QVERIFY(shown);
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().last().toString(),
        QStringLiteral("Vertex-Shader konnte nicht hinzugefügt werden"));
}

void TestTileContext::tileThatWasNeverShownGoes()
{
    TileTest t(2);
    t.decode(Picture(QSize(320, 180), first));
    t.remove();
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), second), 1); // of the one that is left
    QTRY_COMPARE(differencesOnScreen(t, second), QString());
}

void TestTileContext::tileGoesWithItsContext()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), first), 0);
    t.decode(Picture(QSize(320, 180), second), 1);
    QTRY_COMPARE(differencesOnScreen(t, second, 1), QString());
    t.remove();
    QTRY_COMPARE(differencesOnScreen(t, second), QString());
    t.remove();
    QCOMPARE(t.window.findChildren<GlWidgetViewWindow*>().size(), 0);
}

void TestTileContext::tileGoesWhileItsPictureWaits()
{
    TileTest t(2);
    QVERIFY(t.show());
    for (int i = 0; i < 3; ++i) {
        t.decode(Picture(QSize(320, 180), first), 0);
        t.decode(Picture(QSize(320, 180), first), 1);
    }
    emit t.io->waitingStreamMsg(t.channel());
    t.viewControl.setRecord(t.channel(), true);
    t.remove();
    QTest::qWait(300);
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
}

void TestTileContext::windowGoesWithItsTile()
{
    TileTest t;
    for (int i = 0; i < 3; ++i) {
        QWidget window;
        window.resize(200, 120);
        auto* tile = new GlWidgetViewWindow(&window);
        tile->setChannel(t.device.get(), t.channel());
        tile->resize(200, 120, 0, 0);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        t.decode(Picture(QSize(320, 180), first));
        QCOMPARE(differences(paintedOf(tile), t.inner(), rgbOf(first)), QString());
    }
}

void TestTileContext::nothingIsLeftOfATileThatWent()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), first));
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
    const int before = objectCount(t.tile());
    for (int i = 0; i < 5; ++i) {
        GlWidgetViewWindow passing(&t.window);
        passing.setChannel(t.device.get(), t.channel());
        passing.resize(100, 100, 0, 0);
        passing.show();
        t.decode(Picture(QSize(320, 180), first));
        QVERIFY(!paintedOf(&passing).isNull());
        QVERIFY(objectCount(t.tile()) > before);
    }
    QCOMPARE(objectCount(t.tile()), before);
}

void TestTileContext::pictureIsRightInAnotherWindow()
{
    TileTest t(2);
    askForErrors(t.tile());
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), first));
    t.decode(Picture(QSize(320, 180), second), 1);
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
    QWidget other;
    other.setWindowFlags(Qt::FramelessWindowHint);
    other.setGeometry(500, 0, 200, 120);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    for (QWidget* parent : {&other, &t.window, &other, &t.window}) {
        t.tile()->setParent(parent);
        t.tile()->show();
        QCOMPARE(differences(t.painted(), t.inner(), rgbOf(first)), QString());
        ErrorRecord record(t.tile());
        t.decode(Picture(QSize(426, 240), second));
        QCOMPARE(differences(t.painted(), t.inner(), rgbOf(second)), QString());
        for (const QString& error : qAsConst(record.errors))
            QVERIFY2(error.contains(QLatin1String("glBindTexture")), qPrintable(error));
        t.decode(Picture(QSize(320, 180), first));
        QCOMPARE(differences(t.painted(1), t.inner(1), rgbOf(second)), QString());
    }
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
}

void TestTileContext::pictureIsRightInAWindowMadeAnew()
{
    TileTest t(2);
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), first));
    t.decode(Picture(QSize(320, 180), second), 1);
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
    QTRY_COMPARE(differencesOnScreen(t, second, 1), QString());
    for (const bool onTop : {true, false, true}) {
        t.window.setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
        QVERIFY(t.show());
        QTRY_COMPARE(differencesOnScreen(t, first), QString());
        QTRY_COMPARE(differencesOnScreen(t, second, 1), QString());
    }
    t.decode(Picture(QSize(426, 240), second));
    QTRY_COMPARE(differencesOnScreen(t, second), QString());
}

void TestTileContext::pictureIsRightAfterHiding()
{
    TileTest t;
    QVERIFY(t.show());
    t.decode(Picture(QSize(320, 180), first));
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
    t.window.hide();
    QVERIFY(t.show());
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
    t.decode(Picture(QSize(320, 180), second));
    QTRY_COMPARE(differencesOnScreen(t, second), QString());
    t.tile()->hide();
    t.decode(Picture(QSize(320, 180), first));
    t.tile()->show();
    emit t.viewControl.windowNumberChangeMsg();
    QTRY_COMPARE(differencesOnScreen(t, first), QString());
}

ORVA_TEST(TestTileContext)
#include "tst_tilecontext.moc"

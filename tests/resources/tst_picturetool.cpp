// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <map>

// The program that makes the pictures at build time.
class PictureToolTest final : public QObject
{
    Q_OBJECT

private slots:
    void makesPictures();
    void needsNoDisplay();
    void takesThreeArguments();
    void reportsWhatIsWrong_data();
    void reportsWhatIsWrong();
};

namespace {

constexpr char manifestText[] = R"({
  "places": {"btn": ["/main", "img"]},
  "faces": {"dark": {"colour": "ink"}, "plated": {"colour": "ink", "plate": {"fill": "glass"}},
            "other": {"recolour": {"#123456": "ink"}}},
  "pictures": [{"at": "btn", "canvas": 8, "states": {"": "dark", "-on": "plated"}, "names": ["dot"]},
               {"at": "btn", "canvas": 8, "states": {"": "other"}, "names": ["box = art/box"]}],
  "animations": [{"at": "btn", "name": "wait", "canvas": 8, "still": "art/box",
                  "turning": "art/box", "frames": 2, "frame-ms": 40}]
})";

constexpr char tokensText[] = R"json({"ink": "#0D1117", "glass": "rgba(255,255,255,0.5)"})json";

constexpr char dotText[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 8">
<circle cx="4" cy="4" r="2" fill="currentColor"/></svg>)";

constexpr char boxText[] = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 8 8">
<rect x="1" y="1" width="6" height="3" fill="#123456"/></svg>)";

// A small set of sources that the tool accepts, to be broken in one place.
class Sources
{
public:
    std::map<QString, QByteArray> files{{"pictures.json", manifestText},
        {"tokens.json", tokensText}, {"icons/dot.svg", dotText}, {"art/box.svg", boxText}};

    // Runs the tool; its error output is `errors`.
    int run(const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
    {
        const QDir root(folder.path());
        root.mkdir(QStringLiteral("icons"));
        root.mkdir(QStringLiteral("art"));
        for (const auto& [name, bytes] : files)
            write(root.filePath(name), bytes);
        QProcess tool;
        tool.setProcessEnvironment(environment);
        tool.start(QStringLiteral(ORVA_PICTURES_TOOL),
            {root.filePath(QStringLiteral("pictures.json")),
                root.filePath(QStringLiteral("tokens.json")),
                root.filePath(QStringLiteral("out"))});
        if (!tool.waitForFinished())
            return -1;
        errors = QString::fromLocal8Bit(tool.readAllStandardError());
        return tool.exitStatus() == QProcess::NormalExit ? tool.exitCode() : -1;
    }

    QString made(const char* file) const
    {
        return folder.filePath(QStringLiteral("out/")) + QLatin1String(file);
    }

    QTemporaryDir folder;
    QString errors;

private:
    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
};

// One thing that is wrong in the sources, and what the tool says to it.
struct Broken
{
    const char* title;
    const char* file;
    const char* from; // empty: the file is missing
    const char* to;
    const char* report;
};

constexpr char manifest[] = "pictures.json";

constexpr Broken broken[] = {
    {"no manifest", manifest, "", "", "pictures.json: cannot be read"},
    {"broken json", manifest, "\"faces\": {", "\"faces\": ", "pictures.json: line 3: "},
    {"not an object", manifest, "{\n", "[] {", "pictures.json: "},
    {"missing key", manifest, "\"canvas\": 8, \"states\": {\"\": \"o", "\"states\": {\"\": \"o",
        "pictures[1]: expected the key \"canvas\""},
    {"unknown key", manifest, "\"states\": {\"\": \"o", "\"state\": {\"\": \"o",
        "pictures[1]: the key \"state\" is not known"},
    {"zero size", manifest, "\"canvas\": 8, \"states\"", "\"canvas\": 0, \"states\"",
        "pictures[0].canvas: expected a whole number"},
    {"half a size", manifest, "\"canvas\": 8, \"states\"", "\"canvas\": [8], \"states\"",
        "pictures[0].canvas: expected [width, height]"},
    {"wrong kind", manifest, "[\"dot\"]", "[1]", "pictures[0].names[0]: expected a text"},
    {"no array", manifest, "[\"dot\"]", "\"dot\"", "pictures[0].names: expected an array"},
    {"misspelt name", manifest, "[\"dot\"]", "[\"dot dot\"]",
        "pictures[0].names[0]: expected \"NAME\""},
    {"unknown place", manifest, "{\"at\": \"btn\", \"canvas\"", "{\"at\": \"b\", \"canvas\"",
        "pictures[0].at: expected a name of \"places\", not \"b\""},
    {"bad place", manifest, "[\"/main\", \"img\"]", "[\"main\", \"img\"]",
        "places.btn: expected [\"/prefix\", \"folder\"]"},
    {"unknown face", manifest, "\"-on\": \"plated\"", "\"-on\": \"gold\"",
        "pictures[0].states.-on: expected a name of \"faces\", not \"gold\""},
    {"unknown token", manifest, "\"colour\": \"ink\"}", "\"colour\": \"inc\"}",
        "faces.dark.colour: expected a colour token of tokens.json, not \"inc\""},
    {"translucent glyph", manifest, "\"colour\": \"ink\"}", "\"colour\": \"glass\"}",
        "faces.dark.colour: expected an opaque colour"},
    {"unknown side", manifest, "\"fill\": \"glass\"", "\"fill\": \"glass\", \"open\": \"up\"",
        "faces.plated.plate.open: expected \"left\" or \"right\""},
    {"name twice", manifest, "[\"dot\"]", "[\"dot\", \"dot\"]",
        "pictures[0].names[1]: the name \":/main/img/dot.png\" is given twice"},
    {"state is a name", manifest, "[\"dot\"]", "[\"dot\", \"dot-on = dot\"]",
        "the name \":/main/img/dot-on.png\" is given twice"},
    {"colour to spare", manifest, "{\"\": \"other\"}", "{\"\": \"dark\"}",
        "art/box.svg: for pictures[1].names[0] \"box\": does not use currentColor"},
    {"no such colour", manifest, "#123456", "#654321",
        "art/box.svg: for pictures[1].names[0] \"box\": expected the colour #654321"},
    {"odd pace", manifest, "\"frame-ms\": 40", "\"frame-ms\": 45",
        "animations[0].frame-ms: expected a multiple of 10"},

    {"no tokens", "tokens.json", "", "", "tokens.json: cannot be read"},
    {"bad hex", "tokens.json", "#0D1117", "#0D11", "tokens.json: ink: expected #RRGGBB"},
    {"bad rgb", "tokens.json", "#0D1117", "rgb(1,2,256)", "tokens.json: ink: expected"},
    {"bad alpha", "tokens.json", "0.5)", "1.5)", "tokens.json: glass: expected"},
    {"alpha missing", "tokens.json", ",0.5)", ")", "tokens.json: glass: expected"},

    {"no svg", "icons/dot.svg", "", "",
        "icons/dot.svg: for pictures[0].names[0] \"dot\": cannot be read"},
    {"broken svg", "icons/dot.svg", "</svg>", "</sv",
        "icons/dot.svg: for pictures[0].names[0] \"dot\": expected an SVG that Qt can draw"},
    {"no svg at all", "icons/dot.svg", "<svg", "<html", "icons/dot.svg: for pictures[0]"},
    {"lost gradient", "icons/dot.svg", "r=\"2\"", "r=\"2\" stroke=\"url(#g)\"",
        "icons/dot.svg: for pictures[0].names[0] \"dot\": expected an SVG that Qt can draw"},
    {"text", "icons/dot.svg", "<circle", "<text>7</text><circle",
        "icons/dot.svg: for pictures[0].names[0] \"dot\": expected letters as paths"},
    {"no colour given", "art/box.svg", "#123456", "currentColor",
        "art/box.svg: for pictures[1].names[0] \"box\": uses currentColor"},
};

} // namespace

void PictureToolTest::makesPictures()
{
    Sources sources;
    QCOMPARE(sources.run(), 0);
    QCOMPARE(sources.errors, QString());
    for (const char* file : {"main/img/dot.png", "main/img/dot@2x.png", "main/img/dot-on.png",
             "main/img/dot-on@2x.png", "main/img/box.png", "main/img/wait.gif", "pictures.qrc"})
        QVERIFY2(QFile::exists(sources.made(file)), file);
    const QImage dot(sources.made("main/img/dot@2x.png"));
    QCOMPARE(dot.size(), QSize(16, 16));
    QCOMPARE(dot.pixel(8, 8), qRgb(0x0D, 0x11, 0x17));
    QCOMPARE(QImage(sources.made("main/img/box.png")).pixel(3, 2), qRgb(0x0D, 0x11, 0x17));
}

void PictureToolTest::needsNoDisplay()
{
    Sources sources;
    QProcessEnvironment bare;
    for (const char* name : {"PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS"})
        bare.insert(QLatin1String(name), qEnvironmentVariable(name));
    bare.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("none-such"));
    bare.insert(QStringLiteral("FONTCONFIG_FILE"), QStringLiteral("/none-such"));
    QCOMPARE(sources.run(bare), 0);
    QCOMPARE(sources.errors, QString());
}

void PictureToolTest::takesThreeArguments()
{
    QProcess tool;
    tool.start(QStringLiteral(ORVA_PICTURES_TOOL), {QStringLiteral("one")});
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitCode(), 2);
    QVERIFY(tool.readAllStandardError().startsWith("usage: "));
}

void PictureToolTest::reportsWhatIsWrong_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("from");
    QTest::addColumn<QByteArray>("to");
    QTest::addColumn<QString>("report");
    for (const Broken& row : broken) {
        QTest::newRow(row.title) << QString(row.file) << QByteArray(row.from) << QByteArray(row.to)
                                 << QString(row.report);
    }
}

void PictureToolTest::reportsWhatIsWrong()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, from);
    QFETCH(QByteArray, to);
    QFETCH(QString, report);
    Sources sources;
    if (from.isEmpty()) {
        sources.files.erase(file);
    } else {
        QVERIFY(sources.files[file].contains(from));
        sources.files[file].replace(from, to);
    }
    QCOMPARE(sources.run(), 1);
    QVERIFY2(sources.errors.contains(report), qPrintable(sources.errors));
    QCOMPARE(sources.errors.count(QLatin1Char('\n')), 1);
    QVERIFY(!QFile::exists(sources.made("pictures.qrc")));
}

ORVA_TEST(PictureToolTest)
#include "tst_picturetool.moc"

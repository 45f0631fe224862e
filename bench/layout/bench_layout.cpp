// SPDX-License-Identifier: GPL-3.0-or-later
// The wall of the client rearranged under software OpenGL, with 1 to 64 tiles, beside as many OpenGL
// widgets that only clear. Needs an X display of 1920x1080 of its own.
#include "app/startup.h"
#include "barewall.h"
#include "composition.h"
#include "memory.h"
#include "ourwall.h"
#include "report.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <string>

using namespace std::chrono_literals;

namespace {

constexpr QSize smaller(32, 18); // by so much the tiles' area is resized

struct Options
{
    int rounds = 7;
    std::vector<QSize> sizes;
    int tiles = 64; // of --memory
    QString memory; // whose, empty: measure all
};

WINDOW_MOD modOf(int tiles)
{
    for (const WINDOW_MOD mod :
        {WINDOW_MOD_1, WINDOW_MOD_4, WINDOW_MOD_16, WINDOW_MOD_36, WINDOW_MOD_49}) {
        if (windowTiles(mod) == tiles)
            return mod;
    }
    return WINDOW_MOD_64;
}

std::unique_ptr<Subject> shownSubject(bool isOurs, QSize size)
{
    std::unique_ptr<Subject> subject;
    if (isOurs)
        subject = std::make_unique<OurWall>(size);
    else
        subject = std::make_unique<BareWall>(size);
    if (!subject->show())
        qFatal("no window");
    return subject;
}

// One subject through all steps, once.
class Round final
{
public:
    Round(Table& table, bool isOurs, QSize size)
        : table_(table)
        , isOurs_(isOurs)
        , size_(size)
        , subject_(shownSubject(isOurs, size))
    {
    }

    void run()
    {
        for (const int tiles : {1, 4, 16, 36, 64}) {
            make(tiles);
            if (tiles == 64)
                rearrange();
            step("drop " + std::to_string(tiles), [this] { subject_->dropTiles(); });
        }
        turnPages();
    }

private:
    void step(const std::string& what, const std::function<void()>& work)
    {
        Sample sample;
        const Meter all;
        work();
        sample.call = all.elapsed();
        awaitComposition(subject_->tiles());
        sample.shown = all.elapsed();
        subject_->settle();
        if (!subject_->tiles().isEmpty()) {
            const Meter repaint;
            subject_->bringPictures();
            awaitComposition(subject_->tiles());
            sample.pictures = repaint.elapsed();
        }
        table_.add(what, isOurs_, sample);
    }

    void make(int tiles)
    {
        subject_->prepare(modOf(tiles));
        step("make " + std::to_string(tiles), [this] { subject_->makeTiles(); });
    }

    void setLayout(int from, int to)
    {
        step(std::to_string(from) + " -> " + std::to_string(to),
            [this, to] { subject_->setLayout(modOf(to)); });
    }

    void rearrange()
    {
        setLayout(64, 49);
        setLayout(49, 64);
        step("double click in", [this] { subject_->doubleClick(); });
        step("double click out", [this] { subject_->doubleClick(); });
        step("to playback", [this] { subject_->changeMode(false); });
        step("to live view", [this] { subject_->changeMode(true); });
        step("resize 64", [this] { subject_->resizeTo(size_ - smaller); });
        step("resize 64", [this] { subject_->resizeTo(size_); });
        setLayout(64, 4);
        setLayout(4, 64);
    }

    void turnPages()
    {
        subject_->openMore();
        for (const int tiles : {16, 64}) {
            subject_->prepare(modOf(tiles));
            subject_->makeTiles();
            awaitComposition(subject_->tiles());
            subject_->bringPictures();
            awaitComposition(subject_->tiles());
            const std::string what = "page at " + std::to_string(tiles);
            step(what, [this] { subject_->turnPage(true); });
            step(what, [this] { subject_->turnPage(false); });
            subject_->dropTiles();
        }
    }

    Table& table_;
    const bool isOurs_;
    const QSize size_;
    const std::unique_ptr<Subject> subject_;
};

void measureSteps(QSize size, int rounds)
{
    Table table;
    for (int round = 0; round < rounds; ++round) {
        for (const bool isOurs : {true, false})
            Round(table, isOurs, size).run();
    }
    table.print(size);
}

// What the animation takes while all tiles wait for their first picture.
void measureWaiting(QSize size)
{
    constexpr std::chrono::seconds time = 3s;
    for (const int tiles : {1, 4, 16, 64}) {
        const auto subject = shownSubject(true, size);
        subject->prepare(modOf(tiles));
        subject->makeTiles();
        awaitComposition(subject->tiles());
        const Meter meter;
        const int compositions = countCompositions(subject->tiles().first(), time);
        const Span span = meter.elapsed();
        std::printf("%2d tiles wait: %.2f CPU s/s, %.1f compositions a second\n", tiles,
            span.cpu / span.wall, 1000 * compositions / span.wall);
    }
}

// Prints what the process holds; the caller is another process of this program.
void showMemory(const Options& options)
{
    const auto subject =
        shownSubject(options.memory == QLatin1String("ours"), options.sizes.front());
    subject->prepare(modOf(options.tiles));
    subject->makeTiles();
    awaitComposition(subject->tiles());
    subject->bringPictures();
    awaitComposition(subject->tiles());
    std::printf("%.0f\n", residentKib());
}

// The buffers of all tiles together are as large as the window, however many tiles there are: what
// is between 16 and 64 is what each tile takes besides.
void measureMemory(QSize size)
{
    for (const bool isOurs : {true, false}) {
        const auto few = memoryOf(isOurs, 16, size);
        const auto many = memoryOf(isOurs, 64, size);
        if (few && many) {
            std::printf("memory, %s: 16 tiles %.0f MiB, 64 tiles %.0f MiB, each more %.0f KiB\n",
                isOurs ? "ours" : "bare", *few / 1024, *many / 1024, (*many - *few) / 48);
        }
    }
}

std::vector<QSize> sizesOf(const QString& text)
{
    std::vector<QSize> sizes;
    for (const QString& size : text.split(QLatin1Char(','))) {
        const QStringList sides = size.split(QLatin1Char('x'));
        sizes.emplace_back(sides.value(0).toInt(), sides.value(1).toInt());
    }
    return sizes;
}

Options readOptions(const QApplication& app)
{
    QCommandLineParser parser;
    const QCommandLineOption rounds(QStringLiteral("rounds"),
        QStringLiteral("How often each step is taken."), QStringLiteral("N"), QStringLiteral("7"));
    const QCommandLineOption sizes(QStringLiteral("size"), QStringLiteral("Sizes of the window."),
        QStringLiteral("WxH,..."), QStringLiteral("1280x720,1920x1080"));
    const QCommandLineOption memory(QStringLiteral("memory"),
        QStringLiteral("Only: what --tiles tiles take, `ours` or `bare`."), QStringLiteral("WHO"));
    const QCommandLineOption tiles(
        QStringLiteral("tiles"), QString(), QStringLiteral("N"), QStringLiteral("64"));
    parser.addOptions({rounds, sizes, memory, tiles});
    parser.addHelpOption();
    parser.process(app);
    return {std::max(1, parser.value(rounds).toInt()), sizesOf(parser.value(sizes)),
        parser.value(tiles).toInt(), parser.value(memory)};
}

} // namespace

int main(int argc, char* argv[])
{
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    QApplication::setAttribute(Qt::AA_UseDesktopOpenGL);
    const QApplication app(argc, argv);
    prepareApplication();
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));

    const Options options = readOptions(app);
    if (!options.memory.isEmpty()) {
        showMemory(options);
        return 0;
    }
    for (const QSize size : options.sizes) {
        measureSteps(size, options.rounds);
        measureWaiting(size);
        measureMemory(size);
    }
    return 0;
}

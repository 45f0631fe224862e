// SPDX-License-Identifier: GPL-3.0-or-later
#include "testmain.h"

#include <QImage>
#include <QImageReader>
#include <QMovie>
#include <QTest>

#include <cmath>

// The pictures among the resources: all that the design names, in their sizes and colours.
class PicturesTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyPictureHasItsTwoSizes_data();
    void everyPictureHasItsTwoSizes();
    void statesDiffer_data();
    void statesDiffer();
    void drawingsDiffer_data();
    void drawingsDiffer();
    void backgroundsAreOpaque();
    void platesHaveTheirColour_data();
    void platesHaveTheirColour();
    void glyphsHaveTheirColour_data();
    void glyphsHaveTheirColour();
    void pageKeysAreRoundInside();
    void turnedKeysPointTheirWay_data();
    void turnedKeysPointTheirWay();
    void waitingAnimationRunsEndlessly();
    void waitingAnimationTurnsClockwise();
    void waitingAnimationIsClearAroundTheDisc();
};

namespace {

struct Named
{
    const char* folder;
    QSize size;
    const char* names;
};

constexpr char buttons[] = ":/main/images/btnImg/";

constexpr Named table[] = {
    {":/logo/kelo/images/logo/", {140, 44}, "login_kelo"},
    {":/login/149/images/logo/", {150, 60}, "BRISEN-HD-logo main_brisen"},
    {":/login/150/images/logo/", {120, 29}, "fenrad_login"},
    {":/login/150/images/logo/", {124, 30}, "main_fenrad"},
    {":/login/151/images/logo/", {160, 160}, "orva_orva"},
    {":/login/151/images/logo/", {28, 28}, "main_orva"},
    {":/logo/kelo/images/logo/", {88, 28}, "main_kelo"},
    {":/logo/orva/images/logo/", {16, 16}, "app_icon_16"},
    {":/logo/orva/images/logo/", {32, 32}, "app_icon_32"},
    {":/logo/orva/images/logo/", {48, 48}, "app_icon_48"},
    {":/logo/orva/images/logo/", {64, 64}, "app_icon_64"},
    {":/logo/orva/images/logo/", {128, 128}, "app_icon_128"},
    {":/logo/orva/images/logo/", {256, 256}, "app_icon"},
    {":/bgImage/images/bgImg/", {960, 540}, "opengl_background"},
    {":/bgImage/images/bgImg/", {360, 540}, "login_pane"},
    {buttons, {44, 44}, "btn_login_close_nor btn_close_pre btn_close"},
    {buttons, {24, 24}, "btn_login_visible btn_login_invisible"},
    {buttons, {18, 18},
        "login_user login_user-on login_lock login_lock-on login_globe "
        "login_local mode_live mode_live-on mode_playback mode_playback-on "
        "option option-hover left-hover right-hover "
        "ptz_zoom ptz_focus ptz_iris msg_error msg_ok "
        "opt_time opt_time-on opt_wifi opt_wifi-on opt_password "
        "opt_password-on opt_smart opt_smart-on opt_rotate opt_rotate-on "
        "opt_record opt_record-on cp_local cp_local-on cp_user cp_user-on "
        "cp_debug cp_debug-on cp_time cp_event cp_log"},
    {buttons, {16, 16},
        "combo_arrow spin_up spin_down check_on DVR c512 panel_fold "
        "panel_fold-hover panel_unfold panel_unfold-hover panel_list panel_ptz "
        "panel_info search add add-dark refresh tab_add tab_add-on tab_edit "
        "tab_edit-on tab_search tab_search-on tab_options tab_options-on "
        "folder talk"},
    {buttons, {14, 14}, "fold fold-hover unfold unfold-hover"},
    {buttons, {28, 28}, "user_default"},
    {buttons, {76, 76}, "user_default_large"},
    {buttons, {44, 48},
        "win_min win_min-hover win_max win_max-hover win_restore "
        "win_restore-hover win_close win_close-hover"},
    {buttons, {36, 36},
        "play play-hover stop stop-hover pause pause-hover ff ff-hover fb "
        "fb-hover screenShot screenShot-hover screenCap screenCap-hover "
        "date date-hover full full-hover full_exit full_exit-hover "
        "sc1 sc2 sc3 sc4 sc5 sc6 sc7 sc8 sc9 sc10 sc11 sc32 "
        "sc1-hover sc2-hover sc3-hover sc4-hover sc5-hover sc6-hover "
        "sc7-hover sc8-hover sc9-hover sc10-hover sc11-hover sc32-hover"},
    {buttons, {12, 12}, "fs_list fs_list-hover"},
    {buttons, {22, 22},
        "volume mute alert_error alert_question alert_delete alert_shot "
        "hint_esc alert_close alert_close-hover"},
    {buttons, {24, 18},
        "pt_sc1 pt_sc2 pt_sc3 pt_sc4 pt_sc5 pt_sc6 pt_sc7 pt_sc8 pt_sc9 "
        "pt_sc10 pt_sc11 pt_sc32 pt_sc1-on pt_sc2-on pt_sc3-on pt_sc4-on "
        "pt_sc5-on pt_sc6-on pt_sc7-on pt_sc8-on pt_sc9-on pt_sc10-on "
        "pt_sc11-on pt_sc32-on"},
    {buttons, {30, 94}, "page_left page_left-hover page_right page_right-hover"},
    {buttons, {40, 40},
        "ptz_up ptz_left ptz_right ptz_down ptz_upleft ptz_upright "
        "ptz_downright ptz_downleft ptz_up-on ptz_left-on ptz_right-on "
        "ptz_down-on ptz_upleft-on ptz_upright-on ptz_downright-on "
        "ptz_downleft-on"},
    {buttons, {25, 40},
        "zoom_up zoom_down focus_up focus_down iris_up iris_down zoom_up-on "
        "zoom_down-on focus_up-on focus_down-on iris_up-on iris_down-on"},
    {buttons, {30, 30}, "ptz_lens"},
    {buttons, {34, 34}, "qr_drop"},
};

QStringList split(const char* names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

QImage load(const QString& file)
{
    return QImage(file).convertToFormat(QImage::Format_ARGB32);
}

QImage button(const QString& name)
{
    return load(QLatin1String(buttons) + name + QLatin1String(".png"));
}

template <class Test>
int countPixels(const QImage& image, Test test)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            count += test(image.pixel(x, y)) ? 1 : 0;
    }
    return count;
}

int visiblePixels(const QImage& image)
{
    return countPixels(image, [](QRgb pixel) { return qAlpha(pixel) > 127; });
}

// Premultiplied, as QPainter mixes them: a faint colour has few steps.
bool isNear(QRgb one, QRgb other)
{
    const auto near = [](int a, int b) { return std::abs(a - b) <= 2; };
    one = qPremultiply(one);
    other = qPremultiply(other);
    return near(qRed(one), qRed(other)) && near(qGreen(one), qGreen(other))
        && near(qBlue(one), qBlue(other)) && near(qAlpha(one), qAlpha(other));
}

} // namespace

void PicturesTest::everyPictureHasItsTwoSizes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Named& row : table) {
        for (const QString& name : split(row.names))
            QTest::addRow("%s", qPrintable(name)) << QLatin1String(row.folder) + name << row.size;
    }
}

void PicturesTest::everyPictureHasItsTwoSizes()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    const QImage once = load(path + QLatin1String(".png"));
    const QImage twice = load(path + QLatin1String("@2x.png"));
    QCOMPARE(once.size(), size);
    QCOMPARE(twice.size(), size * 2);
    // The smallest drawing, a chevron of 12 px, has some 10 whole pixels.
    QVERIFY(visiblePixels(once) >= 8);
    QVERIFY(visiblePixels(twice) >= 32);
}

void PicturesTest::statesDiffer_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("normal");
    for (const Named& row : table) {
        const QStringList names = split(row.names);
        for (const QString& name : names) {
            const QString normal = name.section(QLatin1Char('-'), 0, 0);
            if (normal != name && names.contains(normal))
                QTest::addRow("%s", qPrintable(name)) << name << normal;
        }
    }
}

void PicturesTest::statesDiffer()
{
    QFETCH(QString, state);
    QFETCH(QString, normal);
    QVERIFY(button(state) != button(normal));
}

void PicturesTest::drawingsDiffer_data()
{
    QTest::addColumn<QStringList>("names");
    const auto row = [](const char* title, const char* names) {
        QTest::newRow(title) << split(names);
    };
    row("close", "btn_login_close_nor btn_close_pre btn_close");
    row("eye", "btn_login_visible btn_login_invisible");
    row("device", "DVR c512");
    row("bar", "play stop pause ff fb screenShot screenCap date full full_exit");
    row("layouts", "sc1 sc2 sc3 sc4 sc5 sc6 sc7 sc8 sc9 sc10 sc11 sc32");
    row("menu",
        "pt_sc1 pt_sc2 pt_sc3 pt_sc4 pt_sc5 pt_sc6 pt_sc7 pt_sc8 pt_sc9 pt_sc10 pt_sc11 "
        "pt_sc32");
    row("ptz",
        "ptz_up ptz_left ptz_right ptz_down ptz_upleft ptz_upright ptz_downright "
        "ptz_downleft");
    row("rockers", "zoom_up zoom_down");
    row("sound", "volume mute");
    row("chevrons", "left-hover right-hover");
    row("fold", "fold unfold");
}

void PicturesTest::drawingsDiffer()
{
    QFETCH(QStringList, names);
    for (int i = 0; i < names.size(); ++i) {
        for (int j = 0; j < i; ++j)
            QVERIFY2(button(names[i]) != button(names[j]), qPrintable(names[i] + " " + names[j]));
    }
}

void PicturesTest::backgroundsAreOpaque()
{
    for (const char* name : {"opengl_background", "login_pane"}) {
        const QImage image =
            load(QStringLiteral(":/bgImage/images/bgImg/%1.png").arg(QLatin1String(name)));
        QVERIFY2(visiblePixels(image) == image.width() * image.height(), name);
    }
}

void PicturesTest::platesHaveTheirColour_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QPoint>("at");
    QTest::addColumn<QRgb>("colour");
    const auto row = [](const char* name, const QPoint& at, QRgb colour) {
        QTest::newRow(name) << QString::fromLatin1(name) << at << colour;
    };
    row("play", {2, 18}, qRgba(0, 0, 0, 0));
    row("play-hover", {2, 18}, qRgba(255, 255, 255, 26));
    row("pause-hover", {2, 18}, qRgba(100, 149, 237, 46));
    row("screenCap-hover", {2, 18}, qRgba(255, 90, 99, 41));
    row("btn_login_close_nor", {0, 0}, qRgba(0, 0, 0, 0));
    row("btn_close_pre", {0, 0}, qRgb(217, 77, 86));
    row("btn_close", {0, 0}, qRgb(176, 53, 63));
    row("win_min-hover", {43, 47}, qRgb(0x2B, 0x35, 0x44));
    row("win_close-hover", {43, 47}, qRgb(217, 77, 86));
    row("page_left", {1, 1}, qRgba(13, 17, 23, 148));
    row("page_left-hover", {1, 1}, qRgba(13, 17, 23, 204));
    row("ptz_up", {3, 20}, qRgb(255, 255, 255));
    row("ptz_up-on", {3, 20}, qRgb(200, 220, 255));
    row("ptz_up-on", {0, 20}, qRgb(0x2E, 0x5F, 0xC4));
    row("pt_sc1", {12, 9}, qRgba(0, 0, 0, 0));
    row("user_default", {14, 1}, qRgb(0x33, 0x41, 0x5A));
}

void PicturesTest::platesHaveTheirColour()
{
    QFETCH(QString, name);
    QFETCH(QPoint, at);
    QFETCH(QRgb, colour);
    const QColor pixel = button(name).pixelColor(at);
    QVERIFY2(isNear(pixel.rgba(), colour), qPrintable(pixel.name(QColor::HexArgb)));
}

void PicturesTest::glyphsHaveTheirColour_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRgb>("colour");
    const auto row = [](const char* name, QRgb colour) {
        QTest::newRow(name) << QString::fromLatin1(name) << colour;
    };
    row("play", 0xFFDCE3EC);
    row("play-hover", 0xFFFFFFFF);
    row("pause-hover", 0xFF6495ED);
    row("screenCap-hover", 0xFFFF5A63);
    row("sc2-hover", 0xFF6495ED);
    row("login_user", 0xFF4E525A);
    row("login_user-on", 0xFF2E5FC4);
    row("mode_live-on", 0xFF0F1A2E);
    row("cp_log", 0xFF636D7B);
    row("alert_delete", 0xFFC22F3D);
    row("msg_error", 0xFFBF2333);
    row("msg_ok", 0xFF1B7A3D);
    row("left-hover", 0xFFEEF2F7);
}

void PicturesTest::glyphsHaveTheirColour()
{
    QFETCH(QString, name);
    QFETCH(QRgb, colour);
    const QImage image = button(name + QLatin1String("@2x"));
    QVERIFY(countPixels(image, [&](QRgb pixel) { return isNear(pixel, colour); }) >= 6);
}

void PicturesTest::pageKeysAreRoundInside()
{
    const QImage left = button(QStringLiteral("page_left"));
    QCOMPARE(qAlpha(left.pixel(29, 0)), 0);
    QVERIFY(qAlpha(left.pixel(0, 0)) > 100);
    const QImage right = button(QStringLiteral("page_right"));
    QCOMPARE(qAlpha(right.pixel(0, 93)), 0);
    QVERIFY(qAlpha(right.pixel(29, 93)) > 100);
}

void PicturesTest::turnedKeysPointTheirWay_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("tip");
    QTest::newRow("up") << "ptz_up" << QRect(18, 15, 4, 4);
    QTest::newRow("right") << "ptz_right" << QRect(21, 18, 4, 4);
    QTest::newRow("down") << "ptz_down" << QRect(18, 21, 4, 4);
    QTest::newRow("left") << "ptz_left" << QRect(15, 18, 4, 4);
    QTest::newRow("upleft") << "ptz_upleft" << QRect(15, 15, 3, 3);
    QTest::newRow("upright") << "ptz_upright" << QRect(22, 15, 3, 3);
    QTest::newRow("downright") << "ptz_downright" << QRect(22, 22, 3, 3);
    QTest::newRow("downleft") << "ptz_downleft" << QRect(15, 22, 3, 3);
}

void PicturesTest::turnedKeysPointTheirWay()
{
    QFETCH(QString, name);
    QFETCH(QRect, tip);
    const auto isDark = [](QRgb pixel) { return qGray(pixel) < 140; };
    const QImage key = button(name);
    QVERIFY(countPixels(key.copy(tip), isDark) >= 3);
    const QRect opposite(QPoint(40, 40) - tip.bottomRight() - QPoint(1, 1), tip.size());
    QCOMPARE(countPixels(key.copy(opposite), isDark), 0);
}

void PicturesTest::waitingAnimationRunsEndlessly()
{
    QMovie movie(QStringLiteral(":/main/images/btnImg/Loading_icon.gif"));
    movie.setCacheMode(QMovie::CacheAll);
    QVERIFY(movie.isValid());
    QCOMPARE(movie.frameCount(), 24);
    QCOMPARE(movie.loopCount(), -1);
    // Of the file: the movie takes what the decoding took off its delay.
    QImageReader reader(movie.fileName());
    QImage previous;
    for (int i = 0; i < 24; ++i) {
        QVERIFY(movie.jumpToFrame(i));
        QVERIFY(!reader.read().isNull());
        QCOMPARE(reader.nextImageDelay(), 40);
        QCOMPARE(movie.currentImage().size(), QSize(64, 64));
        QVERIFY(movie.currentImage() != previous);
        previous = movie.currentImage();
    }
}

void PicturesTest::waitingAnimationTurnsClockwise()
{
    QMovie movie(QStringLiteral(":/main/images/btnImg/Loading_icon.gif"));
    movie.setCacheMode(QMovie::CacheAll);
    for (int frame = 0; frame < 24; ++frame) {
        QVERIFY(movie.jumpToFrame(frame));
        const auto blue = [&](int degrees) {
            const double angle = degrees * M_PI / 180;
            return qBlue(movie.currentImage().pixel(static_cast<int>(32 + 17 * std::sin(angle)),
                static_cast<int>(32 - 17 * std::cos(angle))));
        };
        QVERIFY(blue(15 * frame + 60) > 200);
        QVERIFY(blue(15 * frame + 240) < 120);
    }
}

void PicturesTest::waitingAnimationIsClearAroundTheDisc()
{
    QMovie movie(QStringLiteral(":/main/images/btnImg/Loading_icon.gif"));
    QVERIFY(movie.jumpToFrame(0));
    const QImage frame = movie.currentImage();
    QCOMPARE(qAlpha(frame.pixel(1, 1)), 0);
    QCOMPARE(qAlpha(frame.pixel(62, 62)), 0);
    QVERIFY(isNear(frame.pixel(32, 1), qRgb(0x56, 0x63, 0x76)));
    QVERIFY(isNear(frame.pixel(32, 32), qRgb(0x17, 0x1C, 0x25)));
}

ORVA_TEST(PicturesTest)
#include "tst_pictures.moc"

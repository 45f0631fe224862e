// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardtest.h"
#include "media/videorecord.h"
#include "picture.h"
#include "testmain.h"

#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

#include <cstdlib>

// The picture on a channel's card, as it is painted.
class TestChannelPicture final : public QObject
{
    Q_OBJECT

private slots:
    void channelWithoutASavedPictureShowsTheDefaultOne();
    void emptyPathShowsTheDefaultPictureAgain();
    void snapshotOfTheChannelIsShown_data();
    void snapshotOfTheChannelIsShown();
    void snapshotOfAnotherChannelIsNotShown();
    void pictureInAFolderOfAnyNameIsShown_data();
    void pictureInAFolderOfAnyNameIsShown();
    void savedPictureOfTheChannelIsShownAtSetUp();
    void newPictureInTheSameFileReplacesTheOldOne();
    void pictureFillsTheCardWhateverItsShape();
};

namespace {

const QColor red(200, 40, 30);
const QColor green(40, 160, 60);

// Of the card's picture, what the name does not cover.
QRect open(const CardTest& t)
{
    return QRect(t.parts().frame->pos() + QPoint(2, 2), QSize(192, 86));
}

QString differences(CardTest& t, const QColor& colour)
{
    return differences(t.painted(), open(t), colour.rgb());
}

bool isNear(QRgb a, QRgb b)
{
    constexpr int tolerance = 6;
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance
        && std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

// Looked at on a grid: stretching may move an edge of it by a pixel.
bool showsTheDefault(CardTest& t)
{
    const QImage shown = t.painted().copy(open(t));
    const QImage whole(QStringLiteral(":/bgImage/images/bgImg/opengl_background.png"));
    const QImage wanted = whole.scaled(192, 108, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    int alike = 0;
    int all = 0;
    for (int y = 4; y < shown.height(); y += 8) {
        for (int x = 4; x < shown.width(); x += 8) {
            ++all;
            alike += isNear(shown.pixel(x, y), wanted.pixel(x, y)) ? 1 : 0;
        }
    }
    return all > 200 && alike * 100 > all * 95;
}

void snapshot(CardTest& t, Channel* channel, bool isPlaceholder, const QString& path)
{
    emit t.wall.decode.screenshotMsg(channel, isPlaceholder, path);
}

} // namespace

void TestChannelPicture::channelWithoutASavedPictureShowsTheDefaultOne()
{
    CardTest t;
    QVERIFY(showsTheDefault(t));
    QCOMPARE(t.parts().image->styleSheet(),
        QString("border:0;border-image: url(\":/bgImage/images/bgImg/opengl_background.png\");"));
}

void TestChannelPicture::emptyPathShowsTheDefaultPictureAgain()
{
    CardTest t;
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    savePicture(path, red);
    snapshot(t, t.channel(), true, path);
    QVERIFY(!showsTheDefault(t));
    snapshot(t, t.channel(), true, QString());
    QVERIFY(showsTheDefault(t));
}

void TestChannelPicture::snapshotOfTheChannelIsShown_data()
{
    QTest::addColumn<bool>("isPlaceholder");
    QTest::newRow("the user's") << false;
    QTest::newRow("a placeholder") << true;
}

void TestChannelPicture::snapshotOfTheChannelIsShown()
{
    QFETCH(bool, isPlaceholder);
    CardTest t;
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    savePicture(path, red);
    snapshot(t, t.channel(), isPlaceholder, path);
    QCOMPARE(differences(t, red), QString());
    QCOMPARE(t.parts().image->styleSheet(),
        QStringLiteral("border:0;border-image: url(\"%1\");").arg(path));
}

void TestChannelPicture::snapshotOfAnotherChannelIsNotShown()
{
    CardTest t;
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    savePicture(path, red);
    snapshot(t, t.channel(1), true, path);
    snapshot(t, t.other->channel(0), true, path);
    snapshot(t, nullptr, true, path);
    QVERIFY(showsTheDefault(t));
    snapshot(t, t.channel(), true, path);
    snapshot(t, t.channel(1), true, QString());
    QCOMPARE(differences(t, red), QString());
}

void TestChannelPicture::pictureInAFolderOfAnyNameIsShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "plain";
    QTest::newRow("blank") << "my pictures";
    QTest::newRow("blanks at the ends") << " a ";
    QTest::newRow("quotation mark") << "the \"gate\" camera";
    QTest::newRow("ends with a quotation mark") << "gate\"";
    QTest::newRow("apostrophe") << "guard's";
    QTest::newRow("letters of Europe") << QString::fromUtf8("Überwachung Étage Ñ");
    QTest::newRow("Cyrillic") << QString::fromUtf8("снимки");
    QTest::newRow("Chinese") << QString::fromUtf8("图片");
    QTest::newRow("Japanese") << QString::fromUtf8("カメラの写真");
    QTest::newRow("beyond 16 bits") << QString::fromUtf8("📷");
    QTest::newRow("brackets") << "gate (2)";
    QTest::newRow("closing bracket") << "gate)";
    QTest::newRow("semicolon and braces") << "a;b{c}d";
    QTest::newRow("percent") << "100%20";
    QTest::newRow("number sign and question mark") << "#1?";
    QTest::newRow("comment") << "a/*b*";
    QTest::newRow("backslash") << "a\\b";
    QTest::newRow("backslash before what looks like a code") << "a\\41 b";
    QTest::newRow("ends with a backslash") << "a\\";
    QTest::newRow("tabulator") << "a\tb";
}

void TestChannelPicture::pictureInAFolderOfAnyNameIsShown()
{
    QFETCH(QString, name);
    CardTest t;
    const QTemporaryDir folder;
    const QString path = folder.filePath(name) + QStringLiteral("/a.png");
    savePicture(path, green);
    snapshot(t, t.channel(), true, path);
    QCOMPARE(differences(t, green), QString());
}

void TestChannelPicture::savedPictureOfTheChannelIsShownAtSetUp()
{
    CardTest t;
    const QString folder = VideoRecord::instance()->channelFolder(t.device, false);
    savePicture(folder + "/placeHolder/Preview_VID1_1.png", red);
    savePicture(folder + "/placeHolder/Preview_VID2_1.png", green);
    t.card.setChannel(t.device, t.channel());
    QCOMPARE(differences(t, red), QString());
    t.card.setChannel(t.device, t.channel(1));
    QCOMPARE(differences(t, green), QString());
    t.card.setChannel(t.other, t.other->channel(0));
    QVERIFY(showsTheDefault(t));
    QVERIFY(QDir(folder).removeRecursively());
}

void TestChannelPicture::newPictureInTheSameFileReplacesTheOldOne()
{
    CardTest t;
    const QTemporaryDir folder;
    const QString path = folder.filePath("a.png");
    savePicture(path, red);
    snapshot(t, t.channel(), true, path);
    QCOMPARE(differences(t, red), QString());
    savePicture(path, green, QSize(640, 360)); // another length: that is how Qt tells them apart
    snapshot(t, t.channel(), true, path);
    QCOMPARE(differences(t, green), QString());
}

void TestChannelPicture::pictureFillsTheCardWhateverItsShape()
{
    CardTest t;
    const QTemporaryDir folder;
    for (const QSize size : {QSize(300, 20), QSize(20, 300), QSize(1, 1), QSize(1920, 1080)}) {
        const QString path = folder.filePath(QString::number(size.width()) + ".png");
        savePicture(path, red, size);
        snapshot(t, t.channel(), true, path);
        QCOMPARE(differences(t, red), QString());
    }
}

ORVA_TEST(TestChannelPicture)
#include "tst_channelpicture.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "stage.h"

#include "cardtest.h"
#include "hands.h"
#include "media/yuvpicture.h"
#include "wall/glwidgetviewwindow.h"
#include "wall/labelwinbtn.h"
#include "wall/waitingcircle.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>

namespace {

template <class Layout>
Layout* bare(Layout* layout)
{
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    return layout;
}

QWidget* plate(const char* colour, QWidget* parent)
{
    auto* widget = new QWidget(parent);
    widget->setAttribute(Qt::WA_StyledBackground);
    widget->setObjectName(QStringLiteral("plate"));
    widget->setStyleSheet(QStringLiteral("QWidget#plate{background:%1}").arg(colour));
    return widget;
}

// An empty tile's inside.
QImage backgroundOf(QSize size)
{
    QLabel label;
    label.setStyleSheet(QStringLiteral(
        "border:0;border-image:url(\":/bgImage/images/bgImg/opengl_background.png\")"));
    label.resize(size);
    return label.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

// Of one colour, and that as good as this one.
bool isFlat(const QImage& screen, const QRect& part, QRgb colour)
{
    const QRgb first = screen.pixel(part.topLeft());
    if (!differences(screen, QRect(part.topLeft(), QSize(1, 1)), colour).isEmpty())
        return false;
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(screen.constScanLine(y)) + part.left();
        if (!std::all_of(line, line + part.width(), [=](QRgb pixel) { return pixel == first; }))
            return false;
    }
    return true;
}

// A look at each pixel by itself takes its time, and is needed only to tell which one is wrong.
QString differencesIn(const QImage& screen, const QRegion& region, QRgb colour)
{
    for (const QRect& part : region) {
        QString text = isFlat(screen, part, colour) ? QString() : differences(screen, part, colour);
        if (!text.isEmpty())
            return text;
    }
    return {};
}

QString differencesIn(
    const QImage& screen, const QRegion& region, const QImage& picture, QPoint origin)
{
    for (const QRect& part : region) {
        if (screen.copy(part) == picture.copy(part.translated(-origin)))
            continue;
        QString text =
            differences(screen, part, [&](QPoint at) { return picture.pixel(at - origin); });
        if (!text.isEmpty())
            return text;
    }
    return {};
}

} // namespace

Stage::Stage(WallTest& wall, QSize size)
    : wall_(wall)
{
    keepPicturesApart();
    setWindowFlags(Qt::FramelessWindowHint);
    setGeometry(QRect(QPoint(0, 0), size));
    setFocusPolicy(Qt::ClickFocus);
    auto* layout = bare(new QVBoxLayout(this));
    buildHeader(layout);
    auto* centre = bare(new QHBoxLayout);
    layout->addLayout(centre, 1);
    buildColumn(centre);
    auto* stage = bare(new QVBoxLayout);
    centre->addLayout(stage, 1);
    buildVideoView(stage);
    buildControlBar(stage);
    timeline_ = plate("#12161D", this);
    timeline_->setFixedHeight(80);
    stage->addWidget(timeline_);
    connectKeys();
    showMode(true);
    setTexts();
}

void Stage::buildHeader(QVBoxLayout* layout)
{
    header_ = plate("#1C2330", this);
    header_->setFixedHeight(48);
    layout->addWidget(header_);
    auto* row = bare(new QHBoxLayout(header_));
    row->setContentsMargins(252, 7, 0, 7);
    auto* ground = new QWidget(header_);
    ground->setObjectName(QStringLiteral("switch"));
    ground->setAttribute(Qt::WA_StyledBackground);
    ground->setStyleSheet(QStringLiteral("QWidget#switch{background:#12161D;border-radius:6px}"));
    auto* segments = bare(new QHBoxLayout(ground));
    liveKey = new WidgetBtnLive(ground);
    playbackKey = new WidgetBtnLive(ground);
    liveKey->setPicture(QStringLiteral(":/main/images/btnImg/mode_live"));
    playbackKey->setPicture(QStringLiteral(":/main/images/btnImg/mode_playback"));
    segments->addWidget(liveKey);
    segments->addWidget(playbackKey);
    row->addWidget(ground);
    row->addStretch();
}

void Stage::buildColumn(QLayout* layout)
{
    column_ = plate("#F5F7FA", this);
    column_->setFixedWidth(240);
    layout->addWidget(column_);
    cards = bare(new QVBoxLayout(column_));
    cards->addStretch();
}

void Stage::buildVideoView(QVBoxLayout* layout)
{
    videoView = new WidgetBtn(this);
    layout->addWidget(videoView, 1);
    auto* rows = bare(new QVBoxLayout(videoView));
    nameBar_ = plate("#171C25", videoView);
    nameBar_->setFixedHeight(32);
    rows->addWidget(nameBar_);
    auto* bar = bare(new QHBoxLayout(nameBar_));
    bar->setContentsMargins(14, 0, 14, 0);
    bar->addStretch();
    pageLabel = new QLabel(nameBar_);
    pageLabel->setStyleSheet(QStringLiteral("color:#AEBAC9;font-size:11px"));
    bar->addWidget(pageLabel);
    viewBox = plate("#0D1117", videoView);
    viewBox->installEventFilter(this);
    rows->addWidget(viewBox, 1);
    leftPage = new PageBtn(0, viewBox);
    rightPage = new PageBtn(1, viewBox);
}

void Stage::buildControlBar(QVBoxLayout* layout)
{
    controlBar_ = plate("#171C25", this);
    controlBar_->setFixedHeight(50);
    layout->addWidget(controlBar_);
    auto* row = bare(new QHBoxLayout(controlBar_));
    row->setContentsMargins(12, 0, 12, 0);
    row->setSpacing(4);
    shotKey = new LabelShotBtn(controlBar_);
    recordKey = new LabelRecordBtn(controlBar_);
    layoutKey = new LabelWindowNumBtn(controlBar_);
    fullKey = new LabelFullScreen(controlBar_);
    for (QLabel* key : {static_cast<QLabel*>(shotKey), static_cast<QLabel*>(recordKey),
             static_cast<QLabel*>(layoutKey), static_cast<QLabel*>(fullKey)}) {
        key->setFixedSize(36, 36);
        row->addWidget(key);
    }
    row->insertStretch(2);
}

void Stage::connectKeys()
{
    ViewControl* wall = &wall_.viewControl;
    connect(liveKey, &WidgetBtnLive::clicked, wall, [wall] { wall->changeMod(true); });
    connect(playbackKey, &WidgetBtnLive::clicked, wall, [wall] { wall->changeMod(false); });
    connect(wall, &ViewControl::changeModMsg, this, &Stage::showMode);
    connect(wall, &ViewControl::windowNumberChangeMsg, this, &Stage::raiseKeys);
    connect(layoutKey, &LabelWindowNumBtn::clickWindowMenu, this, &Stage::toggleMenu);
    connect(fullKey, &LabelFullScreen::clickMsg, this, &Stage::showFull);
    connect(videoView, &WidgetBtn::pressEscMsg, this, [this] {
        fullKey->setFull(false);
        showFull(false);
    });
    connect(wall, &ViewControl::createPageMsg, this, [this](int page, int total) {
        pageLabel->setText(QStringLiteral("Page: %1 ,Total: %2").arg(page + 1).arg(total));
    });
}

bool Stage::open()
{
    show();
    activateWindow();
    wall_.viewControl.createWindows(viewBox);
    raiseKeys();
    return QTest::qWaitForWindowActive(this);
}

void Stage::addCards(Device* device, int most)
{
    for (int i = 0; i < std::min(device->channelCount(), most); ++i) {
        auto* card = new ChannelWindow(column_);
        card->setChannel(device, device->channel(i));
        cards->insertWidget(cards->count() - 1, card);
    }
}

void Stage::setTexts()
{
    liveKey->setText(QCoreApplication::translate("MainWindow", "Live"));
    playbackKey->setText(QCoreApplication::translate("MainWindow", "Playback"));
}

void Stage::toggleMenu()
{
    if (menu != nullptr) {
        delete menu;
        return;
    }
    menu = new WindowNumMenu(videoView);
    connect(menu, &WindowNumMenu::clickWindowMod, this, &Stage::selectWindowMod);
    menu->show();
}

// At once, though it is the menu that tells.
void Stage::selectWindowMod(WINDOW_MOD mod)
{
    delete menu;
    wall_.viewControl.setWindowMod(mod, wall_.viewControl.getIsLive());
    layoutKey->setOpen(false);
}

void Stage::showMode(bool isLive)
{
    timeline_->setVisible(!isLive);
    liveKey->setSelected(isLive);
    playbackKey->setSelected(!isLive);
}

void Stage::showFull(bool isFull)
{
    for (QWidget* around : {header_, column_, nameBar_, controlBar_})
        around->setVisible(!isFull);
    timeline_->setVisible(!isFull && !wall_.viewControl.getIsLive());
    wall_.viewControl.setFull(isFull);
}

void Stage::raiseKeys()
{
    leftPage->raise();
    rightPage->raise();
}

// The wall changes its size without the window too: when the timeline comes and goes.
bool Stage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == viewBox && event->type() == QEvent::Resize)
        wall_.viewControl.layoutWindows(viewBox->width(), viewBox->height());
    return QWidget::eventFilter(watched, event);
}

void Stage::decode(Channel* channel, Yuv colour)
{
    const Picture picture(QSize(160, 90), colour);
    const bool isLive = wall_.viewControl.getIsLive();
    ChannelMode& mode = channel->mode(isLive);
    if (mode.yuvBuffer == nullptr)
        mode.yuvBuffer = new std::uint8_t[yuvBufferBytes];
    std::copy(picture.bytes().begin(), picture.bytes().end(), mode.yuvBuffer.load());
    mode.pictureSize = picture.size();
    pictures_.insert(channel, colour);
    emit wall_.decode.decodeSuccess(
        channel, isLive, picture.size().width(), picture.size().height(), 0);
}

void Stage::decodeAll()
{
    const QMap<Channel*, Yuv> pictures = pictures_;
    for (auto at = pictures.begin(); at != pictures.end(); ++at) {
        if (at.key()->mode(wall_.viewControl.getIsLive()).playing)
            decode(at.key(), at.value());
    }
}

GlWidgetViewWindow* Stage::tile(int number) const
{
    return viewBox->findChildren<GlWidgetViewWindow*>().at(number);
}

LabelWinBtn* Stage::menuKey(const char* name) const
{
    return menu->findChild<LabelWinBtn*>(QLatin1String(name));
}

QImage Stage::screen() const
{
    QCoreApplication::processEvents(); // what is to be painted still
    return screenOf(this).convertToFormat(QImage::Format_RGB32);
}

void Stage::saveShot(const QImage& image, const QString& name)
{
    const QString folder = qEnvironmentVariable("ORVA_SCREENSHOTS");
    if (folder.isEmpty())
        return;
    const QString path = QDir(folder).filePath(name + QStringLiteral(".png"));
    if (!QDir().mkpath(folder) || !image.save(path))
        qFatal("cannot write %s", qUtf8Printable(path));
}

QRegion Stage::covered() const
{
    QRegion covered;
    QList<const QWidget*> above{leftPage, rightPage};
    if (menu != nullptr)
        above.append(menu);
    for (const QWidget* widget : qAsConst(above))
        covered += QRect(widget->mapTo(this, QPoint(0, 0)), widget->size());
    for (int i = 0; i < wall_.viewControl.getTileCount(); ++i) {
        const GlWidgetViewWindow* tile = this->tile(i);
        const QPoint at = tile->mapTo(this, QPoint(0, 0));
        for (const auto* circle : tile->findChildren<WaitingCircle*>())
            covered += circle->geometry().translated(at);
        const Channel* channel = tile->getChannel();
        if (channel != nullptr && channel->mode(wall_.viewControl.getIsLive()).record)
            covered += QRect(tile->width() - 60, 3, 60, 20).translated(at);
    }
    return covered;
}

QString Stage::look() const
{
    const int tiles = wall_.viewControl.getTileCount();
    const int widgets = viewBox->findChildren<GlWidgetViewWindow*>().size();
    if (widgets != tiles)
        return QStringLiteral("%1 tiles instead of %2").arg(widgets).arg(tiles);
    const QImage screen = this->screen();
    for (int i = 0; i < tiles; ++i) {
        const QString text = lookAtTile(screen, i);
        if (!text.isEmpty())
            return QStringLiteral("tile %1: %2").arg(i).arg(text);
    }
    return {};
}

bool Stage::showsPicture(int number) const
{
    Channel* channel = tile(number)->getChannel();
    return channel != nullptr && tile(number)->findChild<WaitingCircle*>() == nullptr
        && pictures_.contains(channel);
}

QString Stage::lookAtTile(const QImage& screen, int number) const
{
    const ViewControl& wall = wall_.viewControl;
    const GlWidgetViewWindow* tile = this->tile(number);
    const QRect cell =
        windowRects(wall.getWindowMod(wall.getIsLive()), viewBox->size()).at(std::size_t(number));
    if (tile->geometry() != cell || !tile->isVisible())
        return QStringLiteral("is not in its place");
    if (tile->getChannel() != wall.getTileChannel(number))
        return QStringLiteral("has another channel");
    const QPoint origin = viewBox->mapTo(this, QPoint(0, 0));
    const QRegion seen = QRegion(QRect(origin, viewBox->size())) - covered();
    const QRect area = cell.translated(origin);
    const Channel* selected = Dev::instance()->selectedChannel();
    const QColor frame(
        selected != nullptr && tile->getChannel() == selected ? "#6495ED" : "#cccccc");
    // What stands for a picture covers the inner half of the frame.
    const int width = showsPicture(number) ? 2 : 1;
    const QRegion edge = QRegion(area) - area.adjusted(width, width, -width, -width);
    const QString text = differencesIn(screen, edge & seen, frame.rgb());
    return text.isEmpty() ? lookAtInner(screen, number, seen) : QStringLiteral("frame: ") + text;
}

QString Stage::lookAtInner(const QImage& screen, int number, const QRegion& seen) const
{
    const GlWidgetViewWindow* tile = this->tile(number);
    const QRect area(tile->mapTo(this, QPoint(0, 0)), tile->size());
    if (showsPicture(number))
        return differencesIn(
            screen, seen & area.adjusted(2, 2, -2, -2), rgbOf(pictures_.value(tile->getChannel())));
    const QRect place = area.adjusted(1, 1, -1, -1);
    return differencesIn(screen, seen & place, backgroundOf(place.size()), place.topLeft());
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "wall/glwidgetviewwindow.h"

#include "app/systeminfo.h"
#include "cloud/dev.h"
#include "link/ioconnect.h"
#include "media/decode.h"
#include "media/yuvpicture.h"
#include "model/device.h"
#include "wall/repaintpacer.h"
#include "wall/viewcontrol.h"
#include "wall/waitingcircle.h"

#include <QMouseEvent>
#include <QOpenGLContext>
#include <QOpenGLShader>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr GLfloat positions[] = {-1, -1, 1, -1, 1, 1, -1, 1};
constexpr GLfloat textureCorners[] = {0, 1, 1, 1, 1, 0, 0, 0}; // row 0 at the top

constexpr char vertexSource[] =
    "attribute vec4 vertexIn;attribute vec2 textureIn;varying vec2 textureOut;void main(void)"
    "{gl_Position = vertexIn;textureOut = textureIn;}";
constexpr char fragmentSource[] =
    "varying vec2 textureOut;uniform sampler2D tex_y;uniform sampler2D tex_u;"
    "uniform sampler2D tex_v;void main(void){vec3 yuv; vec3 rgb;"
    "yuv.x = texture2D(tex_y, textureOut).r;yuv.y = texture2D(tex_u, textureOut).r - 0.5;"
    "yuv.z = texture2D(tex_v, textureOut).r - 0.5;"
    "rgb = mat3( 1,       1,         1,  0,       -0.39465,  2.03211, 1.13983, -0.58060,  0) * yuv;"
    "gl_FragColor = vec4(rgb, 1);}";

constexpr char selectedFrame[] = "border:2px solid #6495ED;background:rgba(0,0,0,0)";
constexpr char plainFrame[] = "border:2px solid #ccc;background:rgba(0,0,0,0)";

QString recordTextStyle(const QString& alpha)
{
    return QStringLiteral("font-size:16px;font-weight:bold;color:rgba(255,0,0,%1)").arg(alpha);
}

QString recordDotStyle(const QString& alpha)
{
    return QStringLiteral("border:0;border-radius:6px;background-color:rgba(255,0,0,%1)")
        .arg(alpha);
}

} // namespace

GlWidgetViewWindow::GlWidgetViewWindow(QWidget* parent)
    : QOpenGLWidget(parent)
    , scaleMode_(ViewControl::instance()->getScale())
{
    // Or Qt would clear colour, depth and stencil before each paint, which costs as much as a blit
    // where OpenGL is software; paintGL clears what it must.
    setUpdateBehavior(PartialUpdate);
    buildFrame();
    buildRecordIndicator();
    blinkTimer_.setInterval(200);
    connectSenders();
}

GlWidgetViewWindow::~GlWidgetViewWindow()
{
    delete recordIndicator_;
    delete frameWidget_;
    releaseGl();
    // It ends in the base class's destructor, where there is no tile any more to be told.
    if (context() != nullptr)
        disconnect(context(), nullptr, this, nullptr);
}

void GlWidgetViewWindow::buildFrame()
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    frameWidget_ = new QWidget(this);
    frameWidget_->setAttribute(Qt::WA_StyledBackground);
    frameWidget_->setStyleSheet(QString::fromLatin1(plainFrame));
    layout->addWidget(frameWidget_);

    auto* frameLayout = new QVBoxLayout(frameWidget_);
    frameLayout->setContentsMargins(1, 1, 1, 1);
    backgroundLabel_ = new QLabel(frameWidget_);
    backgroundLabel_->setStyleSheet(QStringLiteral(
        "border:0;border-image:url(\":/bgImage/images/bgImg/opengl_background.png\")"));
    frameLayout->addWidget(backgroundLabel_);
}

void GlWidgetViewWindow::buildRecordIndicator()
{
    const QString opaque = QStringLiteral("1.0");
    recordIndicator_ = new QWidget(this);
    recordIndicator_->setStyleSheet(QStringLiteral("background:rgba(0,0,0,0)"));
    recordDot_ = new QLabel(recordIndicator_);
    recordDot_->setGeometry(QRect(QPoint(0, 5), QPoint(11, 16)));
    recordDot_->setStyleSheet(recordDotStyle(opaque));
    recordText_ = new QLabel(QStringLiteral("REC"), recordIndicator_);
    recordText_->setGeometry(QRect(QPoint(14, 2), QPoint(73, 19)));
    recordText_->setStyleSheet(recordTextStyle(opaque));
    recordIndicator_->hide();
}

void GlWidgetViewWindow::connectSenders()
{
    const IoConnect* io = IoConnect::instance();
    const ViewControl* wall = ViewControl::instance();
    const Dev* dev = Dev::instance();
    using Tile = GlWidgetViewWindow;
    connect(Decode::instance(), &Decode::decodeSuccess, this, &Tile::showImg);
    connect(Decode::instance(), &Decode::frameReceivedMsg, this, &Tile::finishPicture);
    connect(io, &IoConnect::videoRequestStopSuccessMsg, this, &Tile::cleanScreen);
    connect(io, &IoConnect::stopReplaySuccessMsg, this, &Tile::cleanScreen);
    connect(io, &IoConnect::waitingStreamMsg, this, &Tile::showWaiting);
    connect(io, &IoConnect::videoRequestFailMsg, this, &Tile::hideWaiting);
    connect(Decode::instance(), &Decode::streamSilentMsg, this, &Tile::showWaiting);
    connect(wall, &ViewControl::recordMsg, this, &Tile::loadRecordStatus);
    connect(wall, &ViewControl::windowNumberChangeMsg, this, &Tile::reloadImg);
    connect(wall, &ViewControl::scaleChangeMsg, this, &Tile::scaleChange);
    connect(dev, &Dev::selectChannelMsg, this, &Tile::showSelectedChannel);
    connect(dev, &Dev::deleteDevMsg, this, &Tile::forgetDevice);
    connect(&blinkTimer_, &QTimer::timeout, this, &Tile::changeRecordText);
}

void GlWidgetViewWindow::setChannel(Device* device, Channel* channel)
{
    if (channel != channel_) {
        yuvData_ = nullptr; // the other channel's, which may go
        update();
    }
    device_ = device;
    channel_ = channel;
    if (channel_ != nullptr) {
        enterWaiting();
        loadRecordStatus(channel_);
        showSelectedChannel(Dev::instance()->selectedChannel());
        return;
    }
    leaveWaiting();
    showRecord(false);
    showSelectedChannel(nullptr);
    backgroundLabel_->show();
}

void GlWidgetViewWindow::forgetDevice(const Device* device)
{
    if (device_ == device || (channel_ != nullptr && channel_->device() == device))
        setChannel(nullptr, nullptr);
}

void GlWidgetViewWindow::resize(int width, int height, int x, int y)
{
    setGeometry(x, y, width, height);
    resizeGL(width, height);
    recordIndicator_->setGeometry(QRect(QPoint(width - 60, 3), QPoint(width - 1, 22)));
}

void GlWidgetViewWindow::showImg(
    Channel* channel, bool isLive, int width, int height, uint timestamp)
{
    if (channel == nullptr || channel != channel_ || !channel_->mode(isLive).playing)
        return;
    if (!YuvLayout{width, height}.fitsBuffer())
        return;
    const bool first = !backgroundLabel_->isHidden();
    leaveWaiting();
    pictureSize_ = QSize(width, height);
    yuvData_ = channel_->mode(isLive).yuvBuffer.load(std::memory_order_acquire);
    timestamp_ = timestamp;
    // What covered the tile is gone with the next composition: the picture must be in it.
    if (first)
        update();
    else
        RepaintPacer::of(window())->pictureCame(this);
}

void GlWidgetViewWindow::finishPicture(Channel* channel)
{
    if (channel == channel_ && yuvData_ != nullptr)
        RepaintPacer::of(window())->pictureGoes(this);
}

void GlWidgetViewWindow::reloadImg()
{
    if (channel_ == nullptr)
        return;
    const ChannelMode& mode = channel_->mode(ViewControl::instance()->getIsLive());
    const std::uint8_t* picture = mode.yuvBuffer.load(std::memory_order_acquire);
    const QSize size = mode.pictureSize; // the tile may have shown another one before
    if (picture == nullptr || size.isEmpty())
        return;
    yuvData_ = picture;
    pictureSize_ = size;
    update();
}

void GlWidgetViewWindow::cleanScreen(Channel* channel)
{
    if (channel_ != nullptr && channel != channel_)
        return;
    yuvData_ = nullptr;
    update();
}

void GlWidgetViewWindow::scaleChange()
{
    scaleMode_ = ViewControl::instance()->getScale();
}

void GlWidgetViewWindow::showWaiting(Channel* channel)
{
    if (channel == channel_ && channel != nullptr)
        enterWaiting();
}

void GlWidgetViewWindow::hideWaiting(Channel* channel)
{
    if (channel == channel_ && channel != nullptr)
        leaveWaiting();
}

void GlWidgetViewWindow::enterWaiting()
{
    delete waitingCircle_;
    waitingCircle_ = new WaitingCircle(this);
    waitingCircle_->centre();
    waitingCircle_->show();
    backgroundLabel_->show();
}

void GlWidgetViewWindow::leaveWaiting()
{
    delete waitingCircle_;
    backgroundLabel_->hide();
}

void GlWidgetViewWindow::loadRecordStatus(Channel* channel)
{
    if (channel == channel_ && channel != nullptr)
        showRecord(channel_->mode(ViewControl::instance()->getIsLive()).record);
}

void GlWidgetViewWindow::showRecord(bool isRecording)
{
    if (isRecording)
        blinkTimer_.start();
    else
        blinkTimer_.stop();
    recordIndicator_->setVisible(isRecording);
}

void GlWidgetViewWindow::changeRecordText()
{
    blinkAlpha_ -= 10;
    if (blinkAlpha_ < 0)
        blinkAlpha_ = 100;
    const QString alpha = QString::number(blinkAlpha_ / 100.0);
    recordText_->setStyleSheet(recordTextStyle(alpha));
    recordDot_->setStyleSheet(recordDotStyle(alpha));
}

void GlWidgetViewWindow::showSelectedChannel(Channel* channel)
{
    const bool selected = channel != nullptr && channel == channel_;
    const QString style = QString::fromLatin1(selected ? selectedFrame : plainFrame);
    if (frameWidget_->styleSheet() != style) // the same one anew would be worked out anew
        frameWidget_->setStyleSheet(style);
}

void GlWidgetViewWindow::mouseReleaseEvent(QMouseEvent* event)
{
    Device* const device = device_; // who hears of the selection may bind another one
    Channel* const channel = channel_;
    const bool endsDoubleClick = std::exchange(endsDoubleClick_, false);
    if (channel != nullptr && !endsDoubleClick) {
        Dev::instance()->selectDevice(device);
        Dev::instance()->selectChannel(channel);
        if (event->button() == Qt::RightButton)
            emit ViewControl::instance()->openedSubWindowMenuMsg(device, channel, event);
    }
    QOpenGLWidget::mouseReleaseEvent(event);
}

void GlWidgetViewWindow::mouseDoubleClickEvent(QMouseEvent*)
{
    endsDoubleClick_ = true; // another channel may stand here when the button is released
    if (channel_ != nullptr)
        emit doubleClicked(channel_);
}

// A picture that came while the tile was hidden has not been painted.
void GlWidgetViewWindow::showEvent(QShowEvent* event)
{
    QOpenGLWidget::showEvent(event);
    update();
}

void GlWidgetViewWindow::initializeGL()
{
    initializeOpenGLFunctions();
    connect(context(), &QOpenGLContext::aboutToBeDestroyed, this, &GlWidgetViewWindow::releaseGl,
        Qt::UniqueConnection);
    const auto* version = reinterpret_cast<const char*>(glGetString(GL_VERSION));
    SystemInfo::instance()->setOpenGlVersion(QString::fromLatin1(version));
    glEnable(GL_DEPTH_TEST);
    glDepthFunc(GL_ALWAYS); // nothing lies before a picture, and nobody clears depth
    glDepthMask(GL_FALSE);
    buildProgram();
    glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 0, positions);
    glVertexAttribPointer(1, 2, GL_FLOAT, GL_FALSE, 0, textureCorners);
    glEnableVertexAttribArray(0);
    glEnableVertexAttribArray(1);
    buildTextures();
    glClearColor(0.99F, 0.99F, 0.99F, 0);
}

// A failure is told, and the next step is tried all the same.
void GlWidgetViewWindow::buildProgram()
{
    auto* vertex = new QOpenGLShader(QOpenGLShader::Vertex, this);
    if (!vertex->compileSourceCode(vertexSource))
        reportError(0, QT_TR_NOOP("fail to create vertex shader"));
    auto* fragment = new QOpenGLShader(QOpenGLShader::Fragment, this);
    if (!fragment->compileSourceCode(fragmentSource))
        reportError(1, QT_TR_NOOP("fail to create fragment shader"));
    program_ = std::make_unique<QOpenGLShaderProgram>();
    if (!program_->addShader(vertex))
        reportError(2, QT_TR_NOOP("fail to add vertex shader"));
    if (!program_->addShader(fragment))
        reportError(3, QT_TR_NOOP("fail to add fragment shader"));
    program_->bindAttributeLocation("vertexIn", 0);
    program_->bindAttributeLocation("textureIn", 1);
    if (!program_->link())
        reportError(4, QT_TR_NOOP("fail to link shaders"));
    if (!program_->bind())
        reportError(5, QT_TR_NOOP("fail to bind shaders"));
}

void GlWidgetViewWindow::buildTextures()
{
    const char* const samplers[] = {"tex_y", "tex_u", "tex_v"};
    for (std::size_t i = 0; i < textures_.size(); ++i) {
        textures_[i] = std::make_unique<QOpenGLTexture>(QOpenGLTexture::Target2D);
        textures_[i]->create();
        textureIds_[i] = textures_[i]->textureId();
        glUniform1i(program_->uniformLocation(samplers[i]), static_cast<GLint>(i));
    }
}

void GlWidgetViewWindow::reportError(int code, const char* text) const
{
    emit ViewControl::instance()->glErrorMsg(code, tr(text));
}

// The context may go before the tile does: when its window is made anew.
void GlWidgetViewWindow::releaseGl()
{
    if (!program_)
        return;
    makeCurrent();
    // The default texture lives on with the contexts of other tiles. Mesa keeps this context's view of
    // what is in it beyond the context's end, and reads it at the next upload: it must be empty.
    glActiveTexture(GL_TEXTURE1);
    glBindTexture(GL_TEXTURE_2D, 0);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RED, 0, 0, 0, GL_RED, GL_UNSIGNED_BYTE, nullptr);
    for (auto& texture : textures_)
        texture.reset();
    program_.reset();
    qDeleteAll(findChildren<QOpenGLShader*>());
    doneCurrent();
}

void GlWidgetViewWindow::resizeGL(int, int)
{
    if (waitingCircle_)
        waitingCircle_->centre();
    update();
}

QSize GlWidgetViewWindow::pictureArea(const QSize& tile, int scaleMode)
{
    const int width = tile.width();
    const int height = tile.height();
    const auto fit = [&](int across, int down) {
        const int heightAtFullWidth = down * (width / across);
        return heightAtFullWidth <= height ? QSize(width, heightAtFullWidth)
                                           : QSize(across * (height / down), height);
    };
    if (scaleMode == 1)
        return fit(4, 3);
    if (scaleMode == 2)
        return fit(16, 9);
    return tile;
}

// Qt paints within it, and again for the update() of resizeGL.
void GlWidgetViewWindow::resizeEvent(QResizeEvent* event)
{
    resizing_ = true;
    QOpenGLWidget::resizeEvent(event);
    resizing_ = false;
}

void GlWidgetViewWindow::paintGL()
{
    if (resizing_)
        return;
    if (channel_ == nullptr || yuvData_ == nullptr) {
        glClear(GL_COLOR_BUFFER_BIT); // the last picture
        return;
    }
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
    const QSize area = pictureArea(size(), scaleMode_);
    // One pixel less on each side keeps the picture off the frame.
    glViewport((width() - area.width()) / 2 + 1, (height() - area.height()) / 2 + 1,
        area.width() - 2, area.height() - 2);

    const YuvLayout layout{pictureSize_.width(), pictureSize_.height()};
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1); // rows have no padding
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, textureIds_[0]);
    uploadPlane(yuvData_, layout.width, layout.height);
    glActiveTexture(GL_TEXTURE1);
    // No target of OpenGL: it refuses the binding, so the plane goes into the unit's default texture,
    // which its sampler reads. That one may be common to all tiles, so each paint uploads anew: none
    // may rely on what an earlier one has put there.
    glBindTexture(GL_TEXTURE1, textureIds_[1]);
    uploadPlane(yuvData_ + layout.offsetOfU(), layout.chromaWidth(), layout.chromaHeight());
    glActiveTexture(GL_TEXTURE2);
    glBindTexture(GL_TEXTURE_2D, textureIds_[2]);
    uploadPlane(yuvData_ + layout.offsetOfV(), layout.chromaWidth(), layout.chromaHeight());
    glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
}

void GlWidgetViewWindow::uploadPlane(const std::uint8_t* samples, int width, int height)
{
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RED, width, height, 0, GL_RED, GL_UNSIGNED_BYTE, samples);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

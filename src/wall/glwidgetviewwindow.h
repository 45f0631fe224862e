// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLabel>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QOpenGLTexture>
#include <QOpenGLWidget>
#include <QPointer>
#include <QSize>
#include <QTimer>

#include <array>
#include <cstdint>
#include <memory>

class Channel;
class Device;
class WaitingCircle;

// One tile's picture surface: uploads the planes of its channel's YUV buffer and converts them in
// the fragment shader; over it the frame, the mark of a running recording, and while no picture is
// there the waiting animation and the background. Owned by ViewControl; main thread.
//
// The pixels are written by decode tasks without a lock: a picture may be torn. Failures of OpenGL go
// to ViewControl's glErrorMsg with a code from 0 to 5 and its text, and drawing is tried all the same.
class GlWidgetViewWindow final : public QOpenGLWidget, protected QOpenGLFunctions
{
    Q_OBJECT

public:
    explicit GlWidgetViewWindow(QWidget* parent);
    ~GlWidgetViewWindow() override;
    Q_DISABLE_COPY_MOVE(GlWidgetViewWindow)

    Channel* getChannel() const { return channel_; }
    bool isChannelBound() const { return device_ != nullptr && channel_ != nullptr; }
    uint timestamp() const { return timestamp_; } // of the last picture
    // Of the wall: this tile mirrors another one's channel.
    bool isMirror() const { return mirror_; }
    void setMirror(bool mirror) { mirror_ = mirror; }

    // Both borrowed; null shows the empty tile. A device that leaves the registry is let go.
    void setChannel(Device* device, Channel* channel);
    // In pixels of the parent.
    void resize(int width, int height, int x, int y);
    using QOpenGLWidget::resize;

    // The part of a tile that a picture takes in a scale mode, see ViewControl::getScale. Empty
    // where the tile is too small for the mode.
    static QSize pictureArea(const QSize& tile, int scaleMode);

public slots:
    void showImg(Channel* channel, bool isLive, int width, int height, uint timestamp);
    void cleanScreen(Channel* channel);
    void loadRecordStatus(Channel* channel);
    void showSelectedChannel(Channel* channel);
    void reloadImg();
    void showWaiting(Channel* channel);
    void hideWaiting(Channel* channel);
    void changeRecordText();
    void scaleChange();

signals:
    void doubleClicked(Channel* channel);

protected:
    void initializeGL() override;
    void resizeGL(int width, int height) override;
    void paintGL() override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void buildFrame();
    void buildRecordIndicator();
    void connectSenders();
    void buildProgram();
    void buildTextures();
    void reportError(int code, const char* text) const;
    void releaseGl();
    void uploadPlane(const std::uint8_t* samples, int width, int height);
    void enterWaiting();
    void leaveWaiting();
    void showRecord(bool isRecording);
    void finishPicture(Channel* channel);
    void forgetDevice(const Device* device);

    Channel* channel_ = nullptr;
    Device* device_ = nullptr;

    QWidget* recordIndicator_ = nullptr;
    QLabel* recordDot_ = nullptr;
    QLabel* recordText_ = nullptr;
    QWidget* frameWidget_ = nullptr;
    QLabel* backgroundLabel_ = nullptr;
    QPointer<WaitingCircle> waitingCircle_;

    std::unique_ptr<QOpenGLShaderProgram> program_;
    std::array<std::unique_ptr<QOpenGLTexture>, 3> textures_; // Y, U, V
    std::array<GLuint, 3> textureIds_{};

    QSize pictureSize_;
    const std::uint8_t* yuvData_ = nullptr; // the channel's buffer; null: nothing to draw
    uint timestamp_ = 0;
    QTimer blinkTimer_;
    int blinkAlpha_ = 100; // percent
    bool mirror_ = false;
    bool endsDoubleClick_ = false; // the release that is to come
    int scaleMode_ = 0;
    bool resizing_ = false; // inside the event
};

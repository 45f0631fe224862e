// SPDX-License-Identifier: GPL-3.0-or-later
// What showing clips with software OpenGL costs at the least: decode, upload three planes, draw a
// quad for each, one swap per frame time, and nothing else.   bench_floor CLIP...
#include "clipdecoder.h"
#include "tilegrid.h"

#include <QGuiApplication>
#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QOpenGLShaderProgram>
#include <QTimer>
#include <QWindow>

#include <array>
#include <chrono>
#include <cstdio>
#include <vector>

using Clock = std::chrono::steady_clock;

namespace {

constexpr std::chrono::milliseconds frameTime(40);

constexpr char vertexSource[] = R"(
attribute vec4 vertexIn;
attribute vec2 textureIn;
varying vec2 textureOut;
void main(void)
{
    gl_Position = vertexIn;
    textureOut = textureIn;
}
)";

constexpr char fragmentSource[] = R"(
varying vec2 textureOut;
uniform sampler2D tex_y;
uniform sampler2D tex_u;
uniform sampler2D tex_v;
void main(void)
{
    vec3 yuv;
    yuv.x = texture2D(tex_y, textureOut).r;
    yuv.y = texture2D(tex_u, textureOut).r - 0.5;
    yuv.z = texture2D(tex_v, textureOut).r - 0.5;
    vec3 rgb = mat3(1, 1, 1, 0, -0.39465, 2.03211, 1.13983, -0.58060, 0) * yuv;
    gl_FragColor = vec4(rgb, 1);
}
)";

constexpr std::array<float, 8> positions{-1, -1, 1, -1, 1, 1, -1, 1};
constexpr std::array<float, 8> textureCoordinates{0, 1, 1, 1, 1, 0, 0, 0};
constexpr GLsizei planes = 3;

struct Tile
{
    std::unique_ptr<ClipDecoder> decoder;
    std::array<GLuint, planes> textures{};
};

class Floor final : public QWindow
{
public:
    explicit Floor(std::vector<Tile> tiles);

    bool prepare();

protected:
    void exposeEvent(QExposeEvent* event) override;

private:
    void prepareTile(Tile& tile);
    void showPictures();
    void upload(const AVFrame& picture, const Tile& tile);
    void scheduleNext();

    std::vector<Tile> tiles_;
    QOpenGLContext context_;
    QOpenGLFunctions* gl_ = nullptr; // the context's
    QOpenGLShaderProgram program_;
    Clock::time_point due_; // none before the window is on the screen
};

Floor::Floor(std::vector<Tile> tiles)
    : tiles_(std::move(tiles))
{
    QSurfaceFormat format;
    format.setSwapInterval(0);
    setSurfaceType(OpenGLSurface);
    setFormat(format);
    context_.setFormat(format);
    setFlags(Qt::FramelessWindowHint);
    setGeometry(QRect(QPoint(0, 0), wallSize));
}

bool Floor::prepare()
{
    create();
    if (!context_.create() || !context_.makeCurrent(this))
        return false;
    gl_ = context_.functions();
    program_.addShaderFromSourceCode(QOpenGLShader::Vertex, vertexSource);
    program_.addShaderFromSourceCode(QOpenGLShader::Fragment, fragmentSource);
    program_.bindAttributeLocation("vertexIn", 0);
    program_.bindAttributeLocation("textureIn", 1);
    if (!program_.link() || !program_.bind())
        return false;
    program_.setUniformValue("tex_y", 0);
    program_.setUniformValue("tex_u", 1);
    program_.setUniformValue("tex_v", 2);
    program_.setAttributeArray(0, positions.data(), 2);
    program_.setAttributeArray(1, textureCoordinates.data(), 2);
    program_.enableAttributeArray(0);
    program_.enableAttributeArray(1);
    for (Tile& tile : tiles_)
        prepareTile(tile);
    return true;
}

void Floor::prepareTile(Tile& tile)
{
    gl_->glGenTextures(planes, tile.textures.data());
    for (const GLuint texture : tile.textures) {
        gl_->glBindTexture(GL_TEXTURE_2D, texture);
        gl_->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
        gl_->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
        gl_->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
        gl_->glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    }
}

void Floor::exposeEvent(QExposeEvent* /*event*/)
{
    if (!isExposed() || due_ != Clock::time_point())
        return;
    due_ = Clock::now();
    showPictures();
}

void Floor::showPictures()
{
    const int count = static_cast<int>(tiles_.size());
    for (int i = 0; i < count; ++i) {
        const Tile& tile = tiles_[static_cast<std::size_t>(i)];
        const AVFrame* picture = tile.decoder->next();
        if (picture == nullptr) {
            std::fprintf(stderr, "bench_floor: a clip cannot be read\n");
            QCoreApplication::exit(1);
            return;
        }
        const QRect at = tileRect(i, count);
        gl_->glViewport(at.x(), wallSize.height() - at.y() - at.height(), at.width(), at.height());
        upload(*picture, tile);
        gl_->glDrawArrays(GL_TRIANGLE_FAN, 0, 4);
    }
    context_.swapBuffers(this);
    scheduleNext();
}

// Leaves the tile's textures bound to the units that the program reads.
void Floor::upload(const AVFrame& picture, const Tile& tile)
{
    for (std::size_t i = 0; i < planes; ++i) {
        const int width = i == 0 ? picture.width : picture.width / 2;
        const int height = i == 0 ? picture.height : picture.height / 2;
        gl_->glActiveTexture(static_cast<GLenum>(GL_TEXTURE0 + i));
        gl_->glBindTexture(GL_TEXTURE_2D, tile.textures[i]);
        gl_->glPixelStorei(GL_UNPACK_ROW_LENGTH, picture.linesize[i]);
        gl_->glTexImage2D(
            GL_TEXTURE_2D, 0, GL_RED, width, height, 0, GL_RED, GL_UNSIGNED_BYTE, picture.data[i]);
    }
}

// Late pictures follow at once.
void Floor::scheduleNext()
{
    due_ += frameTime;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(due_ - Clock::now());
    QTimer::singleShot(std::max(left, std::chrono::milliseconds(0)), Qt::PreciseTimer, this,
        [this] { showPictures(); });
}

std::vector<Tile> openTiles(const QStringList& clips, std::string& error)
{
    std::vector<Tile> tiles;
    for (const QString& clip : clips) {
        tiles.emplace_back();
        tiles.back().decoder = ClipDecoder::open(clip.toStdString(), error);
        if (!tiles.back().decoder)
            return {};
    }
    return tiles;
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication app(argc, argv);
    std::string error = "no clips";
    std::vector<Tile> tiles = openTiles(QCoreApplication::arguments().mid(1), error);
    if (tiles.empty()) {
        std::fprintf(stderr, "bench_floor: %s\n", error.c_str());
        return 1;
    }
    Floor floor(std::move(tiles));
    if (!floor.prepare()) {
        std::fprintf(stderr, "bench_floor: no OpenGL\n");
        return 1;
    }
    floor.show();
    return QCoreApplication::exec();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "svg.h"

#include "problem.h"

#include <QFile>
#include <QSvgRenderer>

namespace {

QStringList* reports = nullptr;

// QSvgRenderer drops what it does not understand and only logs it; here that is a failure.
class SvgReports
{
public:
    SvgReports()
        : previous_(qInstallMessageHandler(&SvgReports::take))
    {
        reports = &reports_;
    }
    ~SvgReports()
    {
        reports = nullptr;
        qInstallMessageHandler(previous_);
    }
    Q_DISABLE_COPY_MOVE(SvgReports)

    bool isEmpty() const { return reports_.isEmpty(); }
    QString first() const { return reports_.first().simplified(); }

private:
    static void take(QtMsgType, const QMessageLogContext&, const QString& text)
    {
        reports->append(text);
    }

    QStringList reports_;
    QtMessageHandler previous_;
};

// One SVG on its way to a renderer.
class Source
{
public:
    Source(const QString& path, const QString& entry)
        : path_(path)
        , entry_(entry)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly))
            fail(QStringLiteral("cannot be read: ") + file.errorString());
        bytes_ = file.readAll();
        // The build machine may have no fonts at all.
        if (bytes_.contains("<text"))
            fail(QStringLiteral("expected letters as paths, not as text"));
    }

    void setColour(const std::optional<QColor>& colour)
    {
        const bool uses = bytes_.contains("currentColor");
        if (uses && !colour)
            fail(QStringLiteral("uses currentColor, expected a face with a colour"));
        if (!uses && colour)
            fail(QStringLiteral("does not use currentColor, expected a face without a colour"));
        if (colour)
            bytes_.replace("currentColor", colour->name().toLatin1());
    }

    void replace(const Recolour& recolour)
    {
        if (!bytes_.contains(recolour.from))
            fail(QStringLiteral("expected the colour %1 in it, to be replaced")
                     .arg(QString::fromLatin1(recolour.from)));
        bytes_.replace(recolour.from, recolour.to.name().toLatin1());
    }

    std::unique_ptr<QSvgRenderer> renderer() const
    {
        const SvgReports heard;
        auto renderer = std::make_unique<QSvgRenderer>(bytes_);
        if (!heard.isEmpty())
            fail(QStringLiteral("expected an SVG that Qt can draw: ") + heard.first());
        if (!renderer->isValid())
            fail(QStringLiteral("expected an SVG that Qt can draw"));
        if (renderer->viewBoxF().isEmpty())
            fail(QStringLiteral("expected an SVG with a size"));
        return renderer;
    }

private:
    [[noreturn]] void fail(const QString& expected) const
    {
        throw Problem(path_, QStringLiteral("for ") + entry_, expected);
    }

    QString path_;
    QString entry_;
    QByteArray bytes_;
};

} // namespace

std::unique_ptr<QSvgRenderer> loadSvg(const QString& path, const Face& face, const QString& entry)
{
    Source source(path, entry);
    source.setColour(face.colour);
    for (const Recolour& recolour : face.recolours)
        source.replace(recolour);
    return source.renderer();
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "manifest.h"

#include "node.h"
#include "problem.h"
#include "tokens.h"

#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

#include <utility>

namespace {

QSizeF readSize(const Node& node)
{
    if (!node.isArray()) {
        const int side = node.wholeAboveZero();
        return QSizeF(side, side);
    }
    const auto items = node.items();
    if (items.size() != 2)
        node.fail(QStringLiteral("expected [width, height]"));
    return QSizeF(items[0].wholeAboveZero(), items[1].wholeAboveZero());
}

QPointF readPoint(const Node& node)
{
    const auto items = node.items();
    if (items.size() != 2)
        node.fail(QStringLiteral("expected [right, down]"));
    return {items[0].number(), items[1].number()};
}

Plate::Open readOpen(const Node& node)
{
    const QString side = node.text();
    if (side == QLatin1String("left"))
        return Plate::Open::Left;
    if (side == QLatin1String("right"))
        return Plate::Open::Right;
    node.fail(QStringLiteral("expected \"left\" or \"right\""));
}

Plate readPlate(const Node& node, const Tokens& tokens)
{
    node.allow({"fill", "edge", "radius", "open"});
    Plate plate;
    plate.fill = tokens.colour(node.at("fill"));
    if (node.has("edge"))
        plate.edge = tokens.colour(node.at("edge"));
    if (node.has("radius"))
        plate.radius = node.at("radius").number();
    if (node.has("open"))
        plate.open = readOpen(node.at("open"));
    return plate;
}

// Inside an SVG a colour is written without its opacity.
QColor readOpaque(const Node& node, const Tokens& tokens)
{
    QColor colour = tokens.colour(node);
    if (colour.alpha() != 255)
        node.fail(QStringLiteral("expected an opaque colour"));
    return colour;
}

Face readFace(const Node& node, const Tokens& tokens)
{
    node.allow({"colour", "recolour", "plate"});
    Face face;
    if (node.has("colour"))
        face.colour = readOpaque(node.at("colour"), tokens);
    if (node.has("plate"))
        face.plate = readPlate(node.at("plate"), tokens);
    if (node.has("recolour")) {
        const Node map = node.at("recolour");
        for (const QString& from : map.keys())
            face.recolours.push_back({from.toLatin1(), readOpaque(map.at(from), tokens)});
    }
    return face;
}

class Reader
{
public:
    Reader(const QString& file, const Tokens& tokens)
        : root_(Node::read(file))
        , tokens_(tokens)
        , folder_(QFileInfo(file).path())
    {
        manifest_.file = file;
    }

    Manifest read()
    {
        root_.allow({"places", "faces", "pictures", "animations"});
        readPlaces(root_.at("places"));
        readFaces(root_.at("faces"));
        for (const Node& group : root_.at("pictures").items())
            readGroup(group);
        if (root_.has("animations")) {
            for (const Node& node : root_.at("animations").items())
                readAnimation(node);
        }
        return std::move(manifest_);
    }

private:
    // "NAME", "NAME = SVG" or "NAME = SVG turned DEGREES"
    struct Drawing
    {
        QString name;
        QString svg;
        double turnedDegrees;
    };

    void readPlaces(const Node& node);
    void readFaces(const Node& node);
    void readGroup(const Node& group);
    void readAnimation(const Node& node);
    std::vector<std::pair<QString, Face>> readStates(const Node& group) const;
    static Picture readFrame(const Node& group);
    static Drawing readDrawing(const Node& node);
    Face face(const Node& name) const;
    Place place(const Node& owner, const Node& node, const QString& file);
    QString svgPath(const QString& name) const;

    Node root_;
    const Tokens& tokens_;
    QString folder_;
    QHash<QString, Place> places_; // `file` is the folder only
    QHash<QString, Face> faces_;
    QSet<QString> taken_;
    Manifest manifest_;
};

void Reader::readPlaces(const Node& node)
{
    for (const QString& name : node.keys()) {
        const auto items = node.at(name).items();
        if (items.size() != 2 || !items[0].text().startsWith(QLatin1Char('/')))
            node.at(name).fail(QStringLiteral("expected [\"/prefix\", \"folder\"]"));
        places_.insert(name, {items[0].text(), items[1].text()});
    }
}

void Reader::readFaces(const Node& node)
{
    for (const QString& name : node.keys())
        faces_.insert(name, readFace(node.at(name), tokens_));
}

Face Reader::face(const Node& name) const
{
    const auto found = faces_.constFind(name.text());
    if (found == faces_.constEnd())
        name.fail(QStringLiteral("expected a name of \"faces\", not \"%1\"").arg(name.text()));
    return *found;
}

// The name's suffix and its face; without "states" the picture is the drawing as it is.
std::vector<std::pair<QString, Face>> Reader::readStates(const Node& group) const
{
    std::vector<std::pair<QString, Face>> states;
    if (!group.has("states"))
        return {{QString(), Face()}};
    const Node map = group.at("states");
    for (const QString& suffix : map.keys())
        states.emplace_back(suffix, face(map.at(suffix)));
    if (states.empty())
        map.fail(QStringLiteral("expected at least one state"));
    return states;
}

// What all pictures of a group have in common.
Picture Reader::readFrame(const Node& group)
{
    Picture frame;
    frame.canvas = readSize(group.at("canvas")).toSize();
    frame.glyph = group.has("glyph") ? readSize(group.at("glyph")) : QSizeF(frame.canvas);
    if (group.has("nudge"))
        frame.nudge = readPoint(group.at("nudge"));
    return frame;
}

Reader::Drawing Reader::readDrawing(const Node& node)
{
    static const QRegularExpression shape(
        QStringLiteral("^([\\w-]+)(?: = ([\\w/-]+)(?: turned (\\d+))?)?$"));
    const auto match = shape.match(node.text());
    if (!match.hasMatch())
        node.fail(QStringLiteral(
            "expected \"NAME\", \"NAME = SVG\" or \"NAME = SVG turned DEGREES\", not \"%1\"")
                      .arg(node.text()));
    const QString name = match.captured(1);
    return {
        name, match.captured(2).isEmpty() ? name : match.captured(2), match.captured(3).toDouble()};
}

void Reader::readGroup(const Node& group)
{
    group.allow({"at", "canvas", "glyph", "nudge", "states", "names"});
    const auto states = readStates(group);
    Picture picture = readFrame(group);
    for (const Node& node : group.at("names").items()) {
        const Drawing drawing = readDrawing(node);
        picture.svg = svgPath(drawing.svg);
        picture.turnedDegrees = drawing.turnedDegrees;
        for (const auto& [suffix, face] : states) {
            const QString name = drawing.name + suffix;
            picture.entry = QStringLiteral("%1 \"%2\"").arg(node.where(), name);
            picture.place = place(group, node, name + QLatin1String(".png"));
            picture.face = face;
            manifest_.pictures.push_back(picture);
        }
    }
}

void Reader::readAnimation(const Node& node)
{
    node.allow({"at", "name", "canvas", "still", "turning", "frames", "frame-ms"});
    Animation animation;
    animation.entry = node.where();
    animation.place = place(node, node, node.at("name").text() + QLatin1String(".gif"));
    animation.canvas = readSize(node.at("canvas")).toSize();
    animation.stillSvg = svgPath(node.at("still").text());
    animation.turningSvg = svgPath(node.at("turning").text());
    animation.frames = node.at("frames").wholeAboveZero();
    animation.frameMs = node.at("frame-ms").wholeAboveZero();
    if (animation.frameMs % 10 != 0)
        node.at("frame-ms").fail(QStringLiteral("expected a multiple of 10, the step of a GIF"));
    manifest_.animations.push_back(animation);
}

Place Reader::place(const Node& owner, const Node& node, const QString& file)
{
    const Node at = owner.at("at");
    const auto found = places_.constFind(at.text());
    if (found == places_.constEnd())
        at.fail(QStringLiteral("expected a name of \"places\", not \"%1\"").arg(at.text()));
    Place place{found->prefix, found->file + QLatin1Char('/') + file};
    const QString whole = place.prefix + QLatin1Char('/') + place.file;
    if (taken_.contains(whole))
        node.fail(QStringLiteral("the name \":%1\" is given twice").arg(whole));
    taken_.insert(whole);
    return place;
}

// A bare name is an icon.
QString Reader::svgPath(const QString& name) const
{
    const QString folder = name.contains(QLatin1Char('/')) ? QString() : QStringLiteral("icons/");
    return folder_ + QLatin1Char('/') + folder + name + QLatin1String(".svg");
}

} // namespace

Manifest Manifest::read(const QString& file, const Tokens& tokens)
{
    return Reader(file, tokens).read();
}

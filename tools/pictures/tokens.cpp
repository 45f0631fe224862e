// SPDX-License-Identifier: GPL-3.0-or-later
#include "tokens.h"

#include "node.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <optional>

namespace {

std::optional<QColor> fromHex(const QString& text)
{
    static const QRegularExpression shape(QStringLiteral("^#[0-9A-Fa-f]{6}$"));
    if (!shape.match(text).hasMatch())
        return std::nullopt;
    return QColor(text);
}

std::optional<QColor> fromComponents(const QString& text)
{
    static const QRegularExpression shape(QStringLiteral(
        "^rgba?\\( *(\\d{1,3}) *, *(\\d{1,3}) *, *(\\d{1,3}) *(?:, *([01](?:\\.\\d+)?) *)?\\)$"));
    const auto match = shape.match(text);
    if (!match.hasMatch() || text.startsWith(QLatin1String("rgba")) == match.captured(4).isEmpty())
        return std::nullopt;
    QColor colour(match.captured(1).toInt(), match.captured(2).toInt(), match.captured(3).toInt());
    const double alpha = match.captured(4).isEmpty() ? 1 : match.captured(4).toDouble();
    if (!colour.isValid() || alpha > 1)
        return std::nullopt;
    colour.setAlphaF(alpha);
    return colour;
}

QColor parse(const Node& value)
{
    const QString text = value.text();
    const auto colour = text.startsWith(QLatin1Char('#')) ? fromHex(text) : fromComponents(text);
    if (!colour)
        value.fail(
            QStringLiteral("expected #RRGGBB, rgb(r,g,b) or rgba(r,g,b,a), not \"%1\"").arg(text));
    return *colour;
}

} // namespace

Tokens::Tokens(const QString& file)
    : file_(file)
{
    const Node root = Node::read(file);
    for (const QString& name : root.keys())
        colours_.insert(name, parse(root.at(name)));
}

QColor Tokens::colour(const Node& name) const
{
    const auto found = colours_.constFind(name.text());
    if (found == colours_.constEnd())
        name.fail(QStringLiteral("expected a colour token of %1, not \"%2\"")
                      .arg(QFileInfo(file_).fileName(), name.text()));
    return *found;
}

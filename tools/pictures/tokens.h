// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QHash>
#include <QString>

class Node;

// The named colours of the design, read from the file that the style sheet is made with too.
// Immutable after construction. Values are "#RRGGBB", "rgb(r,g,b)" or "rgba(r,g,b,a)" with `a`
// from 0 to 1; the constructor throws Problem on any other.
class Tokens
{
public:
    explicit Tokens(const QString& file);

    // The colour that the node's text names; throws Problem, at the node, for an unknown name.
    QColor colour(const Node& name) const;

private:
    QString file_;
    QHash<QString, QColor> colours_;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "node.h"

#include "problem.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <cmath>

namespace {

QJsonDocument parse(const QString& file, const QByteArray& bytes)
{
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        const auto line = bytes.left(error.offset).count('\n') + 1;
        throw Problem(file, QStringLiteral("line %1").arg(line), error.errorString());
    }
    if (!document.isObject())
        throw Problem(file, QString(), QStringLiteral("expected a JSON object"));
    return document;
}

} // namespace

Node::Node(QString file, QString where, QJsonValue value)
    : file_(std::move(file))
    , where_(std::move(where))
    , value_(std::move(value))
{
}

Node Node::read(const QString& file)
{
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        throw Problem(file, QString(), QStringLiteral("cannot be read: ") + source.errorString());
    return {file, QString(), parse(file, source.readAll()).object()};
}

bool Node::has(const char* key) const
{
    return value_.toObject().contains(QLatin1String(key));
}

Node Node::at(const QString& key) const
{
    if (!value_.isObject())
        fail(QStringLiteral("expected an object"));
    const QJsonObject object = value_.toObject();
    if (!object.contains(key))
        fail(QStringLiteral("expected the key \"%1\"").arg(key));
    const QString where = where_.isEmpty() ? key : where_ + QLatin1Char('.') + key;
    return {file_, where, object.value(key)};
}

QStringList Node::keys() const
{
    if (!value_.isObject())
        fail(QStringLiteral("expected an object"));
    return value_.toObject().keys();
}

std::vector<Node> Node::items() const
{
    if (!value_.isArray())
        fail(QStringLiteral("expected an array"));
    std::vector<Node> nodes;
    int index = 0;
    for (const QJsonValue item : value_.toArray())
        nodes.push_back({file_, where_ + QStringLiteral("[%1]").arg(index++), item});
    return nodes;
}

QString Node::text() const
{
    if (!value_.isString())
        fail(QStringLiteral("expected a text"));
    return value_.toString();
}

double Node::number() const
{
    if (!value_.isDouble())
        fail(QStringLiteral("expected a number"));
    return value_.toDouble();
}

int Node::wholeAboveZero() const
{
    const double value = value_.toDouble();
    if (value < 1 || value > 10000 || std::floor(value) != value)
        fail(QStringLiteral("expected a whole number from 1 to 10000"));
    return static_cast<int>(value);
}

void Node::allow(std::initializer_list<const char*> allowed) const
{
    for (const QString& key : keys()) {
        const auto is = [&](const char* other) { return key == QLatin1String(other); };
        if (std::none_of(allowed.begin(), allowed.end(), is))
            fail(QStringLiteral("the key \"%1\" is not known").arg(key));
    }
}

void Node::fail(const QString& expected) const
{
    throw Problem(file_, where_, expected);
}

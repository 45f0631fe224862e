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
    : m_file(std::move(file))
    , m_where(std::move(where))
    , m_value(std::move(value))
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
    return m_value.toObject().contains(QLatin1String(key));
}

Node Node::at(const QString& key) const
{
    if (!m_value.isObject())
        fail(QStringLiteral("expected an object"));
    const QJsonObject object = m_value.toObject();
    if (!object.contains(key))
        fail(QStringLiteral("expected the key \"%1\"").arg(key));
    const QString where = m_where.isEmpty() ? key : m_where + QLatin1Char('.') + key;
    return {m_file, where, object.value(key)};
}

QStringList Node::keys() const
{
    if (!m_value.isObject())
        fail(QStringLiteral("expected an object"));
    return m_value.toObject().keys();
}

std::vector<Node> Node::items() const
{
    if (!m_value.isArray())
        fail(QStringLiteral("expected an array"));
    std::vector<Node> nodes;
    int index = 0;
    for (const QJsonValue item : m_value.toArray())
        nodes.push_back({m_file, m_where + QStringLiteral("[%1]").arg(index++), item});
    return nodes;
}

QString Node::text() const
{
    if (!m_value.isString())
        fail(QStringLiteral("expected a text"));
    return m_value.toString();
}

double Node::number() const
{
    if (!m_value.isDouble())
        fail(QStringLiteral("expected a number"));
    return m_value.toDouble();
}

int Node::wholeAboveZero() const
{
    const double value = m_value.toDouble();
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
    throw Problem(m_file, m_where, expected);
}

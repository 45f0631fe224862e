// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <initializer_list>
#include <vector>

// A value in a JSON file that remembers where it stands, so that every failure names the file
// and the entry. Each reading function throws Problem when the value is not of its kind.
class Node
{
public:
    // The root object of a file.
    static Node read(const QString& file);

    bool has(const char* key) const;
    Node at(const char* key) const { return at(QString::fromLatin1(key)); }
    Node at(const QString& key) const;
    QStringList keys() const;
    std::vector<Node> items() const;

    QString text() const;
    double number() const;
    int wholeAboveZero() const;
    bool isArray() const { return value_.isArray(); }

    // Refuses any key but these: a misspelt key would otherwise be silently without effect.
    void allow(std::initializer_list<const char*> keys) const;
    [[noreturn]] void fail(const QString& expected) const;
    QString where() const { return where_; }
    QString file() const { return file_; }

private:
    Node(QString file, QString where, QJsonValue value);

    QString file_;
    QString where_;
    QJsonValue value_;
};

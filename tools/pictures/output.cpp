// SPDX-License-Identifier: GPL-3.0-or-later
#include "output.h"

#include "problem.h"

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamWriter>

namespace {

void writeFile(QXmlStreamWriter& xml, const QString& prefix, const QString& file)
{
    xml.writeStartElement(QStringLiteral("file"));
    xml.writeAttribute(QStringLiteral("alias"), file);
    xml.writeCharacters(prefix.mid(1) + QLatin1Char('/') + file);
    xml.writeEndElement();
}

} // namespace

Output::Output(QString folder)
    : folder_(std::move(folder))
{
}

void Output::addPng(const Place& place, const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    // For PNG the lowest quality is the smallest file, without loss.
    if (!image.save(&buffer, "PNG", 0))
        throw Problem(place.file, QString(), QStringLiteral("cannot be written as PNG"));
    add(place, bytes);
}

void Output::add(const Place& place, const QByteArray& bytes)
{
    write(place.prefix + QLatin1Char('/') + place.file, bytes);
    files_[place.prefix].append(place.file);
}

void Output::finish() const
{
    QByteArray bytes;
    QXmlStreamWriter xml(&bytes);
    xml.setAutoFormatting(true);
    xml.writeStartElement(QStringLiteral("RCC"));
    for (const auto& [prefix, files] : files_) {
        xml.writeStartElement(QStringLiteral("qresource"));
        xml.writeAttribute(QStringLiteral("prefix"), prefix);
        for (const QString& file : files)
            writeFile(xml, prefix, file);
        xml.writeEndElement();
    }
    xml.writeEndElement();
    write(QStringLiteral("/pictures.qrc"), bytes);
}

void Output::write(const QString& file, const QByteArray& bytes) const
{
    const QString path = folder_ + file;
    QDir().mkpath(QFileInfo(path).path());
    QSaveFile target(path);
    if (!target.open(QIODevice::WriteOnly) || target.write(bytes) != bytes.size()
        || !target.commit())
        throw Problem(
            path, QString(), QStringLiteral("cannot be written: ") + target.errorString());
}

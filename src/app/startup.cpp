// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup.h"

#include "app/style.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QIcon>
#include <QPalette>

// Resources in a static library are linked in only where something names them; the macro must
// stand outside any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(orva_pictures);
    Q_INIT_RESOURCE(orva_files);
}

namespace {

void addFonts()
{
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/fonts/HELVETICA NEUE.ttf"));
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/fonts/HELVETICA NEUE Bold.ttf"));
}

void setNames()
{
    QCoreApplication::setOrganizationName(QStringLiteral("Quvane"));
    QCoreApplication::setOrganizationDomain(QStringLiteral("orva.invalid"));
    QCoreApplication::setApplicationName(QStringLiteral("ORVA"));
}

void setFont()
{
    // Where the named font is missing, as on Linux; the last one is built into the program.
    const QString family = QStringLiteral("Microsoft YaHei");
    QFont::insertSubstitutions(family,
        {QStringLiteral("Segoe UI"), QStringLiteral("Noto Sans"),
            QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Liberation Sans")});
    QApplication::setFont(QFont(family));
}

void setLook()
{
    QApplication::setStyle(new Style); // taken over
    // A style sheet of Qt 5 cannot name the colour of a placeholder, and gives it that of the text
    // where it names one: so both colours of the input fields come from the palette. They are the
    // tokens text-1 and text-3.
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Text, QColor(0x1B, 0x23, 0x30));
    palette.setColor(QPalette::PlaceholderText, QColor(0x63, 0x6D, 0x7B));
    QApplication::setPalette(palette);
    QFile sheet(QStringLiteral(":/style/orva.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/logo/orva/images/logo/app_icon.png")));
}

} // namespace

void prepareApplication()
{
    initResources();
    addFonts();
    setNames();
    setFont();
    setLook();
}

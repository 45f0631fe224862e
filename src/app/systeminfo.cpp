// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/systeminfo.h"

#include "model/events.h"

#include <QCoreApplication>
#include <QRegExp>
#include <QSysInfo>
#include <QTranslator>
#include <QWidget>

#if defined(Q_OS_WIN)
#include <windows.h>
#endif

namespace {

const char* const translations[SystemInfo::languageCount] = {
    ":/language/language/app_en_US.qm",
    ":/language/language/app_zh_CN.qm",
    ":/language/language/app_zh_HK.qm",
    ":/language/language/app_fr.qm",
    ":/language/language/app_it.qm",
    ":/language/language/app_nl.qm",
    ":/language/language/app_es.qm",
    ":/language/language/app_ru.qm",
    ":/language/language/app_de.qm",
    ":/language/language/app_ja.qm",
};

#if defined(Q_OS_WIN)
std::optional<bool> systemIs64Bit()
{
    // Looked up at run time: old systems lack the function.
    using IsWow64ProcessFunction = BOOL(WINAPI*)(HANDLE, PBOOL);
    const HMODULE kernel = GetModuleHandleW(L"kernel32");
    const auto isWow64Process = kernel == nullptr
        ? nullptr
        : reinterpret_cast<IsWow64ProcessFunction>(GetProcAddress(kernel, "IsWow64Process"));
    BOOL wow64 = FALSE;
    if (isWow64Process == nullptr || !isWow64Process(GetCurrentProcess(), &wow64))
        return std::nullopt;
    return wow64 != FALSE;
}
#else
std::optional<bool> systemIs64Bit()
{
    const QString architecture = QSysInfo::currentCpuArchitecture();
    if (architecture.contains(QLatin1String("64")))
        return true;
    if (architecture == QLatin1String("i386") || architecture == QLatin1String("arm"))
        return false;
    return std::nullopt;
}
#endif

SystemInfo* theSystemInfo = nullptr;

} // namespace

SystemInfo* SystemInfo::instance()
{
    if (theSystemInfo == nullptr)
        new SystemInfo; // stores itself
    return theSystemInfo;
}

SystemInfo::SystemInfo()
{
    if (theSystemInfo != nullptr)
        return;
    theSystemInfo = this;
    qRegisterMetaType<QtMsgType>("QtMsgType");
    qRegisterMetaType<SYSTEM_TYPE_LAGNUAGE>("SystemInfo::SYSTEM_TYPE_LAGNUAGE");
}

SystemInfo::~SystemInfo() = default;

void SystemInfo::setRatio(double)
{
    ratio_ = 1.0;
}

int SystemInfo::getFontSize(FontSize which) const
{
    constexpr int basePixels[] = {10, 11, 18};
    return static_cast<int>(basePixels[which] * ratio_);
}

QString SystemInfo::getSystemInfo()
{
    return getSystemInfo(systemIs64Bit());
}

QString SystemInfo::getSystemInfo(std::optional<bool> is64Bit)
{
    const QString width = !is64Bit ? QStringLiteral("unknown")
        : *is64Bit                 ? tr("64bit")
                                   : tr("32bit");
    return QSysInfo::prettyProductName() + QLatin1Char(' ') + width;
}

void SystemInfo::setLanguage(SYSTEM_TYPE_LAGNUAGE language)
{
    language_ = language;
    translator_.reset(); // takes itself out of the application
    auto translator = std::make_unique<QTranslator>();
    const bool known = language >= 0 && language < languageCount;
    const QString file = known ? QString::fromLatin1(translations[language]) : QString();
    if (translator->load(file, QCoreApplication::applicationDirPath())) {
        QCoreApplication::installTranslator(translator.get());
        translator_ = std::move(translator);
    }
    emit languageChangedMsg(language);
}

void SystemInfo::setFontSize(QWidget* widget, FontSize which) const
{
    QString sheet = widget->styleSheet();
    sheet.replace(QRegExp(QStringLiteral("(font-size:)(.*)(px)")),
        QStringLiteral("font-size:%1px").arg(getFontSize(which)));
    widget->setStyleSheet(sheet);
}

void SystemInfo::setBorderRadius(QWidget* widget) const
{
    QString sheet = widget->styleSheet();
    QRegExp radius(QStringLiteral("(border-radius:)(.*)(px)"));
    QRegExp number(QStringLiteral("(\\d)+"));
    if (radius.indexIn(sheet) < 0 || number.indexIn(radius.cap(2)) < 0)
        return;
    const int scaled = static_cast<int>(number.cap(0).toInt() * ratio_);
    sheet.replace(radius, QStringLiteral("border-radius:%1px").arg(scaled));
    widget->setStyleSheet(sheet);
}

void SystemInfo::setOpenGlVersion(const QString& version)
{
    if (version == openGlVersion_)
        return;
    openGlVersion_ = version;
    emit loadOpenGlVersionMsg(version);
}

bool SystemInfo::event(QEvent* event)
{
    if (event->type() != DebugEvent_getDebug::number)
        return QObject::event(event);
    const auto& line = eventCast<DebugEvent_getDebug>(event);
    emit debugMsg(line.type, line.text);
    return true;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

class QTranslator;
class QWidget;

// What the whole application knows of itself (version, system line, language, scale) and the bus
// for signals between widgets that need not know each other. Singleton, created before any window;
// main thread, but for the log lines, which reach it from any thread as a posted event.
class SystemInfo final : public QObject
{
    Q_OBJECT

public:
    // Stored by value in the remembered logins.
    enum SYSTEM_TYPE_LAGNUAGE : int {
        English,
        ChineseSimplified,
        ChineseTraditional,
        French,
        Italian,
        Dutch,
        Spanish,
        Russian,
        German,
        Japanese,
    };
    Q_ENUM(SYSTEM_TYPE_LAGNUAGE)
    static constexpr int languageCount = Japanese + 1;

    enum FontSize { SmallFont, NormalFont, LargeFont }; // 10, 11 and 18 pixels

    static SystemInfo* instance();

    SystemInfo();
    ~SystemInfo() override;
    Q_DISABLE_COPY_MOVE(SystemInfo)

    QString version() const { return version_; }

    // The scale is pinned: setRatio stores 1.0 whatever it is given, on every screen.
    void setRatio(double ratio);
    double getRatio() const { return ratio_; }
    int getFontSize(FontSize which) const; // pixels, scaled, rounded toward zero

    // Product name of the operating system, a blank, and its word width.
    static QString getSystemInfo();
    // The same for a known width: true is 64 bit, false 32 bit, nothing where it cannot be found.
    static QString getSystemInfo(std::optional<bool> is64Bit);

    // Loads the texts of `language` and emits languageChangedMsg, also when there are none: then
    // the English source texts show. A value beyond the table is stored and has no texts.
    void setLanguage(SYSTEM_TYPE_LAGNUAGE language);
    SYSTEM_TYPE_LAGNUAGE getLanguage() const { return language_; }

    // Rewrite the sizes in the widget's own style sheet: the font size to a base size, the border
    // radius to its old number, both times the scale.
    void setFontSize(QWidget* widget, FontSize which) const;
    void setBorderRadius(QWidget* widget) const;

    // As the first tile that draws finds it; empty before. Emits loadOpenGlVersionMsg when it has
    // changed.
    void setOpenGlVersion(const QString& version);
    QString openGlVersion() const { return openGlVersion_; }

    bool event(QEvent* event) override;

signals:
    void debugMsg(QtMsgType type, const QString& text);
    void loadOpenGlVersionMsg(const QString& version);
    void backToLoginMsg();
    void languageChangedMsg(SystemInfo::SYSTEM_TYPE_LAGNUAGE language);
    void minimizeMsg();
    void normalScreenMsg();
    void fullScreenMsg();

private:
    double ratio_ = 1.0;
    const QString version_ = QStringLiteral("1.7.2.320");
    QString openGlVersion_;
    SYSTEM_TYPE_LAGNUAGE language_ = English;
    std::unique_ptr<QTranslator> translator_;
};

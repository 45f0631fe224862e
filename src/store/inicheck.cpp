// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/inicheck.h"

#include <algorithm>

namespace {

bool isBinary(char c)
{
    const auto code = static_cast<unsigned char>(c);
    return code < ' ' && c != '\t' && c != '\r' && c != '\n';
}

// Reads lines as QSettings does: a backslash takes the next character with it, line breaks
// included, and a quoted text may run over line breaks.
class IniLines
{
public:
    explicit IniLines(const QByteArray& bytes)
        : bytes_(bytes)
    {
    }

    bool atEnd() const { return at_ >= bytes_.size(); }

    // The next line; `complete` is false when the file ends inside quotes, and when QSettings
    // would drop what stands behind a semicolon.
    QByteArray next(bool& complete)
    {
        while (!atEnd() && isBlank(bytes_.at(at_)))
            ++at_;
        const int start = at_;
        bool quoted = false;
        bool cut = false;
        while (!atEnd() && (quoted || !isBreak(bytes_.at(at_)))) {
            const char c = bytes_.at(at_++);
            if (isComment(start, c))
                skipToBreak();
            else if (c == '\\')
                ++at_;
            else if (c == '"')
                quoted = !quoted;
            else if (c == ';' && !quoted)
                cut = true;
        }
        complete = !quoted && !cut;
        QByteArray line = bytes_.mid(start, at_ - start).trimmed();
        ++at_;
        return line;
    }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t'; }
    static bool isBreak(char c) { return c == '\n' || c == '\r'; }
    bool isComment(int start, char c) const { return at_ == start + 1 && c == ';'; }
    void skipToBreak()
    {
        while (!atEnd() && !isBreak(bytes_.at(at_)))
            ++at_;
    }

    const QByteArray& bytes_;
    int at_ = 0;
};

bool isIniLine(const QByteArray& line)
{
    if (line.isEmpty() || line.startsWith(';'))
        return true;
    if (line.startsWith('['))
        return line.indexOf(']') == line.size() - 1;
    // A serialised value that Qt cannot decode is nothing to QSettings, and the program stores none.
    return line.contains('=') && !line.contains("=@Variant(") && !line.contains("=@DateTime(");
}

} // namespace

bool isIntactIni(const QByteArray& bytes)
{
    if (std::any_of(bytes.begin(), bytes.end(), isBinary))
        return false;
    const QByteArray byteOrderMark = QByteArrayLiteral("\xef\xbb\xbf");
    const bool marked = bytes.startsWith(byteOrderMark);
    const QByteArray text = marked ? bytes.mid(byteOrderMark.size()) : bytes;
    IniLines lines(text);
    while (!lines.atEnd()) {
        bool complete = false;
        const QByteArray line = lines.next(complete);
        if (!complete || !isIniLine(line))
            return false;
    }
    return true;
}

#include "cli/Terminal.h"

#include <unistd.h>

#include <cstdio>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

QString printable(QString text)
{
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control || character.category() == QChar::Other_Format)
            character = u'?';
    return text;
}

namespace {

/// JSON itself leaves U+007F to U+009F and the marks of direction as they are.
QByteArray safeJson(const QJsonDocument& document)
{
    QString text;
    for (const QChar character : QString::fromUtf8(document.toJson())) {
        const bool steers =
            character.category() == QChar::Other_Control || character.category() == QChar::Other_Format;
        if (steers && character != u'\n')
            text += u"\\u%1"_s.arg(character.unicode(), 4, 16, QChar(u'0'));
        else
            text += character;
    }
    return text.toUtf8();
}

} // namespace

Terminal::Terminal() : m_showsProgress(::isatty(STDERR_FILENO) == 1) {}

void Terminal::print(const QString& text)
{
    printRaw((text + u'\n').toUtf8());
}

void Terminal::printRaw(const QByteArray& bytes)
{
    clearProgress();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
    std::fflush(stdout);
}

void Terminal::printJson(const QJsonDocument& document)
{
    printRaw(safeJson(document));
}

void Terminal::complain(const QString& text)
{
    clearProgress();
    std::fprintf(stderr, "varnhold-cli: %s\n", text.toUtf8().constData());
}

void Terminal::showProgress(const QString& line)
{
    if (!m_showsProgress)
        return;
    const QString shown = printable(line).leftJustified(m_progressLength);
    m_progressLength = line.size();
    std::fprintf(stderr, "\r%s", shown.toUtf8().constData());
    std::fflush(stderr);
}

void Terminal::clearProgress()
{
    if (m_progressLength == 0)
        return;
    std::fprintf(stderr, "\r%*s\r", static_cast<int>(m_progressLength), "");
    m_progressLength = 0;
}

QString oneLine(const QString& text)
{
    const QStringList lines = QString(text).replace(u'\t', u' ').split(u'\n', Qt::SkipEmptyParts);
    QStringList parts;
    for (const QString& line : lines)
        if (const QString part = line.simplified(); !part.isEmpty())
            parts.append(part);
    return parts.join(u"; "_s);
}

BoxAnswer TerminalBoxes::show(const MessageBox& box)
{
    if (box.icon == BoxIcon::Critical || box.icon == BoxIcon::Exclamation)
        ++m_failures;
    m_terminal.complain(printable(oneLine(box.text)));
    return box.buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
}

bool TerminalAlert::accept(const QString& host, const QStringList& problems)
{
    QString reasons;
    for (const QString& problem : problems)
        reasons += problem.endsWith(u'.') ? u' ' + problem : u' ' + problem + u'.';
    m_terminal.complain(printable(u"The certificate of %1 is not good.%2 Nothing was fetched. To trust its "
                                  "authority, name it in hosts.ini."_s.arg(host, reasons)));
    return false;
}

} // namespace varnhold::cli

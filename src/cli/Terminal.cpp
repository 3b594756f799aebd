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

BoxAnswer TerminalBoxes::show(const MessageBox& box)
{
    if (box.icon == BoxIcon::Critical || box.icon == BoxIcon::Exclamation)
        ++m_failures;
    // A box has lines and tabs, a complaint is one line.
    const QStringList lines = QString(box.text).replace(u'\t', u' ').split(u'\n', Qt::SkipEmptyParts);
    QStringList parts;
    for (const QString& line : lines)
        if (const QString part = line.simplified(); !part.isEmpty())
            parts.append(part);
    m_terminal.complain(printable(parts.join(u"; "_s)));
    return box.buttons == BoxButtons::YesNo ? BoxAnswer::No : BoxAnswer::Ok;
}

bool TerminalAlert::accept(const QString& host, const QStringList& problems)
{
    m_terminal.complain(printable(u"The certificate of %1 is not good: %2 Nothing was fetched. To trust its "
                                  "authority, name it in hosts.ini."_s.arg(host, problems.join(u' '))));
    return false;
}

} // namespace varnhold::cli

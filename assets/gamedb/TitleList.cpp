#include "TitleList.h"

#include "host/Titles.h"

#include <QRegularExpression>

#include <map>
#include <stdexcept>

namespace varnhold::assets {

using namespace Qt::StringLiterals;

namespace {

class Reader
{
public:
    Reader()
    {
        for (const host::SampleTitle& sample : host::sampleTitles())
            m_titles[sample.id] = {.id = sample.id, .name = sample.name};
    }

    void read(const QString& line)
    {
        ++m_number;
        if (line.isEmpty() || line.startsWith(u';'))
            return;
        static const QRegularExpression titleLine(u"^([A-Z]{4}[0-9]{5})(?:  (\\S.*))?$"_s);
        static const QRegularExpression coverLine(u"^@ (\\S+) (\\S+) (\\S.*)$"_s);
        static const QRegularExpression notesLine(u"^(\\+?)([>|]) (\\S.*)$"_s);
        if (const auto found = titleLine.match(line); found.hasMatch())
            begin(found.captured(1), found.captured(2));
        else if (m_title == nullptr)
            fail("belongs to no title");
        else if (const auto cover = coverLine.match(line); cover.hasMatch())
            m_title->cover = {cover.captured(1), cover.captured(2), cover.captured(3).split(u'/')};
        else if (const auto notes = notesLine.match(line); notes.hasMatch())
            add(!notes.captured(1).isEmpty(), notes.captured(2) == u'|', notes.captured(3));
        else if (line == u'+')
            m_title->personal = true;
        else
            fail("is of no known form");
    }

    std::vector<Title> take()
    {
        std::vector<Title> titles;
        for (auto& [id, title] : m_titles)
            titles.push_back(std::move(title));
        return titles;
    }

private:
    void begin(const QString& id, const QString& name)
    {
        const bool isNew = m_titles.count(id) == 0;
        if (isNew == name.isEmpty())
            fail(isNew ? "has no name" : "names a title that is there already");
        m_title = &m_titles[id];
        m_title->id = id;
        if (isNew)
            m_title->name = name;
    }

    void add(bool own, bool rich, const QString& text)
    {
        NotesSource& notes = own ? m_title->ownNotes : m_title->notes;
        if (!notes.lines.isEmpty() && notes.rich != rich)
            fail("mixes plain and rich notes");
        notes.rich = rich;
        notes.lines << text;
        m_title->personal |= own;
    }

    [[noreturn]] void fail(const char* what) const
    {
        throw std::runtime_error("line " + std::to_string(m_number) + ' ' + what);
    }

    std::map<QString, Title> m_titles;
    Title* m_title = nullptr;
    int m_number = 0;
};

} // namespace

std::vector<Title> readTitles(const QString& text)
{
    Reader reader;
    for (const QString& line : text.split(u'\n'))
        reader.read(line);
    return reader.take();
}

} // namespace varnhold::assets

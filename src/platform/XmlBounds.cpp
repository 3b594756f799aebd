#include "platform/XmlBounds.h"

#include "platform/CharacterSearch.h"

#include <algorithm>
#include <string_view>

namespace varnhold {

namespace {

constexpr std::ptrdiff_t mostAttributes = 256;
constexpr std::ptrdiff_t mostReferences = 4096;

/// Places in a text where `part` stands.
std::ptrdiff_t countOf(std::u16string_view text, std::u16string_view part)
{
    std::ptrdiff_t count = 0;
    for (std::size_t at = text.find(part); at != std::u16string_view::npos; at = text.find(part, at + 1))
        ++count;
    return count;
}

/// References to entities of the document's own.
std::ptrdiff_t referencesIn(std::u16string_view text)
{
    const char16_t* const end = text.data() + text.size();
    std::ptrdiff_t count = 0;
    for (const char16_t* at = findCharacter(text.data(), end, u'&'); at != end;
         at = findCharacter(at + 1, end, u'&')) {
        const std::u16string_view name(at + 1, end);
        const auto isName = [name](std::u16string_view known) { return name.starts_with(known); };
        count += isName(u"#") || isName(u"amp;") || isName(u"lt;") || isName(u"gt;") || isName(u"quot;") ||
                         isName(u"apos;")
                     ? 0
                     : 1;
    }
    return count;
}

/// The definition of an attribute ends with a default in quotes or a word behind a number sign; "#FIXED" has
/// both.
bool isDefault(char16_t character)
{
    return character == u'"' || character == u'\'' || character == u'#';
}

/// Definitions of attributes in the text of a declaration, rather too many than too few.
std::ptrdiff_t definitionsIn(std::u16string_view text)
{
    return text.find(u"ATTLIST") == std::u16string_view::npos
               ? 0
               : std::count_if(text.begin(), text.end(), isDefault);
}

/// Goes over a document once and counts what costs the reader more than its length.
class BoundsScan
{
public:
    explicit BoundsScan(std::u16string_view document) : m_at(document.data()), m_end(m_at + document.size())
    {
    }

    bool staysWithin()
    {
        while (m_within && m_at < m_end) {
            const char16_t* const text = m_at;
            m_at = findCharacter(m_at, m_end, u'<');
            m_references += referencesIn({text, m_at});
            if (m_at == m_end || skipAside())
                continue;
            if (skip(u"<!DOCTYPE"))
                documentType();
            else
                tag();
            m_within = m_within && m_references <= mostReferences;
        }
        return m_within && m_references <= mostReferences;
    }

private:
    [[nodiscard]] bool atQuote() const { return *m_at == u'"' || *m_at == u'\''; }

    bool skip(std::u16string_view expected)
    {
        if (!std::u16string_view(m_at, m_end).starts_with(expected))
            return false;
        m_at += expected.size();
        return true;
    }

    void skipPast(std::u16string_view closing)
    {
        m_at = std::search(m_at, m_end, closing.begin(), closing.end());
        skip(closing);
    }

    /// Goes past a comment, a CDATA section or a processing instruction where one begins.
    bool skipAside()
    {
        if (skip(u"<!--"))
            skipPast(u"-->");
        else if (skip(u"<![CDATA["))
            skipPast(u"]]>");
        else if (skip(u"<?"))
            skipPast(u"?>");
        else
            return false;
        return true;
    }

    /// What stands between the quote at hand and the next of its kind; goes past that.
    std::u16string_view takeQuoted()
    {
        const char16_t quote = *m_at++;
        const char16_t* const start = m_at;
        m_at = findCharacter(m_at, m_end, quote);
        const std::u16string_view text(start, m_at);
        m_at += m_at < m_end ? 1 : 0;
        return text;
    }

    void tag()
    {
        std::ptrdiff_t attributes = 0;
        while (m_at < m_end && *m_at != u'>') {
            if (atQuote())
                m_references += referencesIn(takeQuoted());
            else
                attributes += *m_at++ == u'=' ? 1 : 0;
        }
        m_within = attributes <= mostAttributes;
    }

    void documentType()
    {
        bool inSubset = false;
        while (m_at < m_end && (inSubset || *m_at != u'>')) {
            if (atQuote()) {
                takeQuoted();
            } else if (skip(u"<!ENTITY")) {
                entity();
            } else if (skip(u"<!ATTLIST")) {
                attributeList();
            } else if (!skipAside()) {
                m_parameterReferences += *m_at == u'%' ? 1 : 0;
                inSubset = *m_at == u'[' || (inSubset && *m_at != u']');
                ++m_at;
            }
        }
        const std::ptrdiff_t declared = m_declared + m_parameterReferences * m_declaredByParameters;
        m_within = m_within && declared <= mostAttributes;
    }

    void entity()
    {
        bool isParameter = false;
        while (m_at < m_end && *m_at != u'>') {
            if (!atQuote()) {
                isParameter = isParameter || *m_at == u'%';
                ++m_at;
                continue;
            }
            const std::u16string_view value = takeQuoted();
            // What a character reference stands for is part of the markup, too.
            const std::ptrdiff_t hidden = countOf(value, u"&#");
            m_within = m_within && countOf(value, u"=") + hidden <= mostAttributes;
            if (isParameter)
                m_declaredByParameters += hidden > 0 ? mostAttributes + 1 : definitionsIn(value);
        }
    }

    void attributeList()
    {
        while (m_at < m_end && *m_at != u'>') {
            m_declared += isDefault(*m_at) ? 1 : 0;
            if (atQuote())
                m_references += referencesIn(takeQuoted());
            else
                ++m_at;
        }
    }

    const char16_t* m_at;
    const char16_t* const m_end;
    std::ptrdiff_t m_references = 0;
    std::ptrdiff_t m_declared = 0;
    std::ptrdiff_t m_declaredByParameters = 0;
    std::ptrdiff_t m_parameterReferences = 0;
    bool m_within = true;
};

} // namespace

bool withinXmlBounds(QStringView document)
{
    return BoundsScan({document.utf16(), static_cast<std::size_t>(document.size())}).staysWithin();
}

} // namespace varnhold

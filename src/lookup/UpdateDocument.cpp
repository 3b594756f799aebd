#include "lookup/UpdateDocument.h"

#include "lookup/AttributeCut.h"
#include "lookup/LookupView.h"
#include "lookup/MarkRows.h"
#include "lookup/TitleCleaner.h"
#include "lookup/UpdateList.h"
#include "platform/Conversion.h"
#include "platform/Trim.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Settings.h"
#include "state/SizeText.h"

#include <QStringBuilder>

#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// Holds the list's views back while it lives, so that none is in mid-reset when a report shows.
class Filling
{
public:
    explicit Filling(UpdateList& list) : m_list(list) { m_list.beginFill(); }
    ~Filling() { m_list.endFill(); }
    Q_DISABLE_COPY_MOVE(Filling)

private:
    UpdateList& m_list;
};

/// Hands every value that is not empty to `use`, with its piece number. The number is a RowIndex of 16 bits:
/// RunTimeError 6 when it runs over.
template <typename Use> void eachValue(const std::vector<QStringView>& values, Use&& use)
{
    for (std::size_t piece = 0; piece < values.size(); ++piece) {
        if (piece > std::size_t{std::numeric_limits<qint16>::max()})
            throw RunTimeError(errors::overflow);
        if (!values[piece].isEmpty())
            use(static_cast<int>(piece), values[piece]);
    }
}

double numberOf(QStringView value)
{
    // Digits alone, as good as always, need no closer look.
    constexpr qsizetype exactDigits = 15;
    quint64 number = 0;
    for (const QChar digit : value) {
        if (value.size() > exactDigits || digit < u'0' || digit > u'9')
            return doubleFromText(value.toString());
        number = number * 10 + (digit.unicode() - u'0');
    }
    return static_cast<double>(number);
}

QString sizeText(QStringView value)
{
    return Format_Size(numberOf(value), 2, true) % u" ("_s % value % u" bytes)"_s;
}

/// Rows of the list out of the document's text. Pieces are paired by their ordinals and nothing else; the
/// first marker that has no row ends the filling with RunTimeError 35600, which is meant.
void fillRows(UpdateList& list, const QString& text)
{
    const AttributeCut cut(text);
    const auto& versions = cut.values(PackageAttribute::Version);
    list.fillFrom(text, versions.size());
    eachValue(versions, [&](int, QStringView value) { list.addRow(value); });
    eachValue(cut.values(PackageAttribute::SystemVersion),
              [&](int row, QStringView value) { list.setSubItem(row, UpdateList::Version, value); });
    for (int row = 1; row <= list.count(); ++row) {
        if (!list.hasSubItem(row, UpdateList::Version)) {
            list.setSubItem(row, UpdateList::Version, u"N/A"_s);
            list.setReportIcon(row, u"n/a"_s);
        }
    }
    eachValue(cut.values(PackageAttribute::Size),
              [&](int row, QStringView value) { list.setSubItem(row, UpdateList::Size, sizeText(value)); });
    eachValue(cut.values(PackageAttribute::Sha1),
              [&](int row, QStringView value) { list.setSubItem(row, UpdateList::Binary, value); });
    eachValue(cut.values(PackageAttribute::Url),
              [&](int row, QStringView value) { list.setSubItem(row, UpdateList::Url, value); });
}

/// First place of a tag. Tags are few and single characters are found fast.
qsizetype findTag(QStringView text, QStringView tag, qsizetype from = 0)
{
    qsizetype at = text.indexOf(u'<', from);
    while (at >= 0 && !text.sliced(at).startsWith(tag))
        at = text.indexOf(u'<', at + 1);
    return at;
}

/// What stands between the first title tags, trimmed. RunTimeError 5 when either is missing.
QString titleIn(const QString& text)
{
    const QString open = u"<TITLE>"_s;
    const QString close = u"</TITLE>"_s;
    const qsizetype start = findTag(text, open);
    if (start < 0)
        throw RunTimeError(errors::invalidCall);
    const qsizetype end = findTag(text, close, start);
    if (end < 0)
        throw RunTimeError(errors::invalidCall);
    QString title = trimBlanks(text.sliced(start, end - start));
    title = trimBlanks(title.replace(open, QString()));
    return title.replace(close, QString());
}

} // namespace

QStringView Attribute_Value(QStringView piece)
{
    const qsizetype quote = piece.indexOf(u'"');
    return quote < 0 ? piece : piece.first(quote);
}

UpdateDocument::UpdateDocument(ApplicationState& state, const Settings& settings, UpdateList& list,
                               LookupView& view, MessageBoxes& boxes)
    : m_state(state), m_settings(settings), m_list(list), m_view(view), m_boxes(boxes)
{
}

void UpdateDocument::Fill_Updates(int listRow)
{
    reporting(m_boxes, DescriptionLabel::WithBlank, [&] {
        try {
            fill(listRow);
        } catch (const RunTimeError& error) {
            if (error.number() != errors::indexOutOfBounds)
                throw;
            // A marker without a package: what is filled stays, and the title is all that is left to do.
            Find_Title(listRow);
        }
    });
}

void UpdateDocument::Find_Title(int listRow)
{
    reporting(m_boxes, DescriptionLabel::WithBlank, [&] {
        showTitle(listRow);
        const int count = m_list.count();
        m_view.setBlank(u'[' + QString::number(count) + (count > 1 ? u" Updates]"_s : u" Update]"_s));
        finish();
    });
}

void UpdateDocument::fill(int listRow)
{
    {
        const Filling filling(m_list);
        m_list.clear();
        stripViewerMarks(m_state.XMLText);
        m_state.PkgMark = 0;
        fillRows(m_list, m_state.XMLText);
    }
    showTitle(listRow);
    // Plural also for a single row; Find_Title words it the other way.
    const int count = m_list.count();
    m_view.setBlank(count == 0 ? QString() : u'[' + QString::number(count) + u" Updates]"_s);
    finish();
}

void UpdateDocument::showTitle(int listRow)
{
    m_title = cleanTitle(titleIn(m_state.XMLText), m_settings, m_view.gameIdText());
    m_view.setInfo(m_title);
    m_view.setTitleRow(listRow, m_title);
}

void UpdateDocument::finish()
{
    m_view.autosizeColumns();
    Mark_Rows(m_list, m_settings, m_state, m_view.gameIdText(), m_view.info());
}

} // namespace varnhold

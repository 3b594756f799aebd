#include "lookup/UpdateDocument.h"

#include "lookup/AttributeCut.h"
#include "lookup/LookupView.h"
#include "lookup/MarkRows.h"
#include "lookup/TitleCleaner.h"
#include "lookup/UpdateList.h"
#include "platform/Trim.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Settings.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

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

void fillSizes(UpdateList& list, const std::vector<QStringView>& values)
{
    eachValue(values, [&](int row, QStringView value) {
        // Values lie too far apart for the processor to see the next ones coming.
        constexpr std::size_t ahead = 16;
        const QStringView later = values[std::min(static_cast<std::size_t>(row) + ahead, values.size() - 1)];
        __builtin_prefetch(later.cbegin());
        list.setBytes(row, value);
    });
}

/// Rows of the list out of the document's text. Pieces are paired by their ordinals and nothing else; the
/// first marker that has no row ends the filling with RunTimeError 35600, which is meant.
void fillRows(UpdateList& list, const QString& text, const AttributeCut& cut)
{
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
    fillSizes(list, cut.values(PackageAttribute::Size));
    eachValue(cut.values(PackageAttribute::Sha1),
              [&](int row, QStringView value) { list.setSubItem(row, UpdateList::Binary, value); });
    eachValue(cut.values(PackageAttribute::Url),
              [&](int row, QStringView value) { list.setSubItem(row, UpdateList::Url, value); });
}

constexpr QStringView titleOpen = u"<TITLE>";
constexpr QStringView titleClose = u"</TITLE>";

/// What stands between the title tag that begins at `start` (-1: there is none) and the next end of one,
/// trimmed. RunTimeError 5 when either is missing.
QString titleAt(QStringView text, qsizetype start)
{
    const qsizetype end = start < 0 ? -1 : text.indexOf(titleClose, start);
    if (end < 0)
        throw RunTimeError(errors::invalidCall);
    QString title = trimBlanks(text.sliced(start, end - start).toString());
    title = trimBlanks(title.remove(titleOpen.toString()));
    return title.remove(titleClose.toString());
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

void UpdateDocument::setLinkSaver(LinkSaver saver)
{
    m_saveLinks = std::move(saver);
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
        showTitle(listRow, m_state.XMLText.indexOf(titleOpen));
        const int count = m_list.count();
        m_view.setBlank(u'[' + QString::number(count) + (count > 1 ? u" Updates]"_s : u" Update]"_s));
        finish();
    });
}

void UpdateDocument::fill(int listRow)
{
    qsizetype titleStart = -1;
    {
        const Filling filling(m_list);
        m_list.clear();
        const AttributeCut cut(m_state.XMLText);
        titleStart = cut.titleStart();
        m_state.PkgMark = 0;
        fillRows(m_list, m_state.XMLText, cut);
    }
    showTitle(listRow, titleStart);
    // Plural also for a single row; Find_Title words it the other way.
    const int count = m_list.count();
    m_view.setBlank(count == 0 ? QString() : u'[' + QString::number(count) + u" Updates]"_s);
    finish();
}

void UpdateDocument::showTitle(int listRow, qsizetype titleStart)
{
    m_title = cleanTitle(titleAt(m_state.XMLText, titleStart), m_settings, m_view.gameIdText());
    m_view.setInfo(m_title);
    m_view.setTitleRow(listRow, m_title);
}

void UpdateDocument::finish()
{
    m_view.autosizeColumns();
    Mark_Rows(m_list, m_settings, m_state, m_view.gameIdText(), m_view.info());
    if (m_saveLinks && m_settings.isChecked(Check::DBLinks))
        m_saveLinks();
}

} // namespace varnhold

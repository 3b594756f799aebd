#pragma once

#include <QString>
#include <QStringView>

#include <functional>

namespace varnhold {

class MessageBoxes;
class Settings;
class LookupView;
class UpdateList;
struct ApplicationState;

/// Remembers the rows of the update list in the database; it reports its own failures.
using LinkSaver = std::function<void()>;

/// Text of `piece` up to its first double quote; the whole piece when it has none.
QStringView Attribute_Value(QStringView piece);

/// Cuts the update document's text into the rows of the update list and one cleaned title. No XML parser on
/// purpose: pieces are paired by ordinal number, and the outcome of odd documents follows from that.
class UpdateDocument
{
public:
    UpdateDocument(ApplicationState& state, const Settings& settings, UpdateList& list, LookupView& view,
                   MessageBoxes& boxes);

    /// `ListRow`: the game list row that takes the title. Reads and rewrites XMLText.
    void Fill_Updates(int listRow);
    /// The title half alone.
    void Find_Title(int listRow);

    /// Runs at the end of each parse while "DB Links" is on.
    void setLinkSaver(LinkSaver saver);

    /// Title: the cleaned title of the last parse that found one.
    [[nodiscard]] const QString& title() const { return m_title; }

private:
    void fill(int listRow);
    void showTitle(int listRow, qsizetype titleStart);
    void finish();

    ApplicationState& m_state;
    const Settings& m_settings;
    UpdateList& m_list;
    LookupView& m_view;
    MessageBoxes& m_boxes;
    LinkSaver m_saveLinks;
    QString m_title;
};

} // namespace varnhold

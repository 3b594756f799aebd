#pragma once

#include <QByteArray>
#include <QString>

namespace varnhold {

/// Where the notes and the picture of the selected game show.
class EntryView
{
public:
    virtual ~EntryView() = default;
    virtual void showBusy(bool busy) = 0;
    [[nodiscard]] virtual int gameCount() const = 0;
    [[nodiscard]] virtual QString gameIdText() const = 0; ///< txtGameID
    virtual void showNotes(const QString& rtf) = 0;       ///< empty: no text
    virtual void showStoredPicture(const QByteArray& bytes) = 0;
    virtual void showCoverFile(const QString& path) = 0;
    virtual void showBlankPicture() = 0; ///< imgBlank
    virtual void Make_Links() = 0;
};

} // namespace varnhold

#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace varnhold::assets {

/// What a cover shows.
struct CoverOrder
{
    QString scene;
    QString inks;
    QStringList lettering; ///< its lines
};

/// Notes as their author writes them; see NotesMarkup.
struct NotesSource
{
    bool rich = false;
    QStringList lines;
};

struct Title
{
    QString id;
    QString name;
    NotesSource notes = {};
    std::optional<CoverOrder> cover = {};
    bool personal = false;     ///< stands in the personal table too
    NotesSource ownNotes = {}; ///< there; without lines: the same as in the other
};

/// The titles of a list in the form that titles.txt tells, and those of the sample service, in the order of
/// their ids. Throws std::runtime_error with the number of the line that is wrong.
std::vector<Title> readTitles(const QString& text);

} // namespace varnhold::assets

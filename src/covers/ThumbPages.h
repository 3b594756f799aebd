#pragma once

#include <QString>

#include <array>

namespace varnhold {

class CoverFolder;

/// The game list as the thumbnail window sees it: two lists that run side by side and may drift apart. A row
/// that is not there reads empty.
class ThumbsList
{
public:
    virtual ~ThumbsList() = default;
    [[nodiscard]] virtual int count() const = 0;
    [[nodiscard]] virtual QString id(int row) const = 0;    ///< of MorphListBox1
    [[nodiscard]] virtual QString title(int row) const = 0; ///< of List1
    [[nodiscard]] virtual int listIndex() const = 0;        ///< -1: none
    [[nodiscard]] virtual bool isSelected(int row) const = 0;
};

/// One image of the window.
struct ThumbSlot
{
    enum class Shows {
        Kept,  ///< what it showed: no folder is set
        Blank, ///< Thumb(3)'s picture
        Cover  ///< `file`
    };
    Shows shows = Shows::Kept;
    QString file;
    QString toolTip;
};

/// What the window shows at one place of its scroll bar.
struct ThumbPage
{
    int index = 0;
    QString currentId;               ///< thumbCurrentId
    QString caption;                 ///< lblCaption
    std::array<ThumbSlot, 3> images; ///< left, centre, right
};

/// Decides what the thumbnail window shows. Without a widget.
class ThumbPages
{
public:
    ThumbPages(const ThumbsList& list, const CoverFolder& folder) : m_list(list), m_folder(folder) {}

    /// Highest value of HScroll1, as the list is now.
    [[nodiscard]] int maximum() const;
    /// Where the window opens: at ListIndex if any row is selected, else at the first row.
    [[nodiscard]] int firstIndex() const;
    [[nodiscard]] ThumbPage page(int index) const;

private:
    [[nodiscard]] QString label(int row) const;
    [[nodiscard]] ThumbSlot slot(int row) const;

    const ThumbsList& m_list;
    const CoverFolder& m_folder;
};

} // namespace varnhold

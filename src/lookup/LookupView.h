#pragma once

#include <QString>

namespace varnhold {

/// What a lookup shows and asks of the main window. Row numbers of the game list count from 0.
class LookupView
{
public:
    virtual ~LookupView() = default;

    [[nodiscard]] virtual QString gameIdText() const = 0; ///< txtGameID
    virtual void setGameIdText(const QString& text) = 0;
    [[nodiscard]] virtual QString info() const = 0; ///< lblInfo
    virtual void setInfo(const QString& text) = 0;
    virtual void setBlank(const QString& text) = 0;  ///< lblBlank
    virtual void setStatus(const QString& text) = 0; ///< lblStatus
    virtual void hideProgress() = 0;                 ///< ProgressBar1
    virtual void showProgress() = 0;
    virtual void setProgressValue(int percent) = 0; ///< neither shows nor hides it
    /// Hides imgPreview; shows ListView1, barMain and txtGameNotes.
    virtual void showListViews() = 0;
    virtual void autosizeColumns() = 0; ///< Autosize_Columns(ListView1)

    [[nodiscard]] virtual int selectedGameRow() const = 0;      ///< MorphListBox1.ListIndex, -1 when none
    [[nodiscard]] virtual QString selectedGameText() const = 0; ///< MorphListBox1.Text
    /// Selects the row in List1 and reads the title there; empty when there is no such row.
    virtual QString selectTitleRow(int row) = 0;
    /// Writes a title into a row of List1; without effect when there is no such row.
    virtual void setTitleRow(int row, const QString& title) = 0;
};

} // namespace varnhold

#pragma once

#include "search/ListText.h"
#include "search/SearchQuery.h"

namespace varnhold {

/// What search, import and export show and ask of frmSearch. No event runs while they work: what shows their
/// progress paints itself, and seldom.
class SearchView
{
public:
    virtual ~SearchView() = default;

    [[nodiscard]] virtual SearchQuery query() const = 0;
    [[nodiscard]] virtual ListFormat format() const = 0;

    virtual void showBusy(bool busy) = 0;
    virtual void enableSearch(bool enabled) = 0; ///< frSearch
    virtual void enableImport(bool enabled) = 0; ///< frImport
    virtual void showProgress(int maximum) = 0;  ///< PB, at 0
    virtual void setProgress(int value) = 0;     ///< out of the maximum
    virtual void hideProgress() = 0;
    virtual void selectRow(int row) = 0; ///< in both lists
    /// A walk over the rows has come to this one: PB shows it, and every now and then both lists select it.
    virtual void walkTo(int row) = 0;

    [[nodiscard]] virtual QString caption() const = 0; ///< lblCaption
    virtual void setCaption(const QString& text) = 0;
    virtual void setImportCaption(const QString& text) = 0;               ///< of frImport
    virtual void showFile(const QString& title, const QString& path) = 0; ///< txtFile
    virtual void focusImport() = 0;                                       ///< cmdImport
};

} // namespace varnhold

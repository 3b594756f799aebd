#pragma once

namespace varnhold {

class MorphListBox;

/// Makes every MorphListBox known to assistive tools as a list with items. Calls after the first do nothing.
void installMorphListAccessibility();

/// Tells assistive tools that the items are others than before.
void announceMorphListItems(MorphListBox* list);

/// Tells them the current row; -1 when none is.
void announceMorphListRow(MorphListBox* list, int row);

} // namespace varnhold

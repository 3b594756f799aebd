#pragma once

#include <QStringList>
#include <QStringView>

#include <vector>

namespace varnhold {

/// Compares two texts in lower case without making copies of plain ones. Below 0, 0, above 0.
int compareLowered(QStringView left, QStringView right);

/// The number that a text begins with, blanks in front allowed; 0 when it begins with none.
double leadingNumber(QStringView text);

/// The order of a sorted list. By text: in lower case, and by code unit where that is equal. By number:
/// only the leading numbers count.
int compareItems(QStringView left, QStringView right, bool numeric);

/// The indexes of the texts in sorted order; equal texts keep theirs.
std::vector<int> sortedOrder(const QStringList& texts, bool numeric, bool descending);

} // namespace varnhold

#pragma once

#include <QString>

namespace varnhold {

class UpdateList;

/// Body of the balloon over a row of the update list.
QString updateListTip(const UpdateList& list, int row);

/// What a row's icon tells, by its key; empty for one that tells nothing.
QString iconMeaning(const QString& key);

} // namespace varnhold

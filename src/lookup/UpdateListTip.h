#pragma once

#include <QString>

namespace varnhold {

class UpdateList;

/// Body of the balloon over a row of the update list.
QString updateListTip(const UpdateList& list, int row);

} // namespace varnhold

#pragma once

namespace varnhold {

class LookupView;
class SharedDatabase;
class UpdateList;

/// Stores every full row of the update list in PS3Links: a link that is known is refreshed. Failures other
/// than 3021 and 3219 are reported and close the connection.
void saveUpdateLinks(SharedDatabase& database, const UpdateList& list, const LookupView& view);

} // namespace varnhold

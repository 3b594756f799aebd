#pragma once

#include <QString>

#include <optional>

namespace varnhold::cli {

class Session;
struct Package;

/// Fetches one package to `target`, an absolute path that ends in ".pkg", and waits for its end; shows its
/// progress. A file at the target is replaced. No value when a file has arrived, of whatever size; else a
/// sentence, empty when the failure has been told already. A failed download leaves nothing behind.
std::optional<QString> fetchPackage(Session& session, const Package& package, const QString& target);

} // namespace varnhold::cli

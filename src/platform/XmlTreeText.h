#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace varnhold {

/// Shows a well-formed XML document as the text of a browser's tree view: two blanks before the declaration
/// (one is made up where it lacks), each element on a line of its own with two blanks of indent a level,
/// CR LF line ends, attributes in their order with values in double quotes, text decoded. No value for what
/// is not well-formed XML.
std::optional<QString> xmlTreeText(const QByteArray& document);

} // namespace varnhold

#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringView>

#include <optional>

namespace varnhold {

/// Windows-1252, the 8-bit code page of settings files. All 256 bytes decode: the five that the page leaves
/// open stand for the control characters of the same number, and encode back.
QString fromCodePage(QByteArrayView bytes);

/// No value when the text holds a character that the page has no byte for.
std::optional<QByteArray> toCodePage(QStringView text);

} // namespace varnhold

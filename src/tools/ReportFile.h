#pragma once

#include "platform/richtext/RichText.h"

namespace varnhold {

struct Paths;

/// The report as its file holds it: a paragraph a line, all letters black, 10 points, in the report's font,
/// which need not be installed. What ends a line within a value becomes a break within the paragraph.
RichText reportContents(const QString& text);
RichText::CharacterFormat reportLetters();

/// "<id>.rtf" in the program's folder. An id that is no single name throws RunTimeError 75, so that no report
/// leaves that folder.
QString reportPath(const Paths& paths, const QString& gameId);
/// In one step, in place of whatever file or link is there. Throws RunTimeError as replaceFile does.
void saveReport(const QString& path, const RichText& contents);

} // namespace varnhold

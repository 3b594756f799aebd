#pragma once

#include <QStringView>

namespace varnhold {

/// Whether the toolkit's XML reader gets through a document in time that grows with its length alone. It
/// compares each attribute of a tag with all before it, looks through all declared attributes at each tag,
/// and writes a declared entity out again at each of its references. So a tag, also one that an entity
/// holds, may have 256 attributes here, and a document type may declare as many, where those that a parameter
/// entity brings count at each of its references; other entities may be referred to 4096 times in all.
/// Says nothing about whether the text is XML; what is right only up to some place counts only up to there.
bool withinXmlBounds(QStringView document);

} // namespace varnhold

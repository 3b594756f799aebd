#pragma once

#include <QByteArray>

#include <vector>

namespace varnhold::test {

/// Each target is one source that defines these two; FuzzMain.cpp drives it.

/// Reads the input, and requires what has to hold whatever it is.
void check(const QByteArray& input);
/// What the format is made of, for the damage that the driver does.
const std::vector<QByteArray>& pieces();

/// Ends the program by abort() when the condition does not hold, after writing the input to x_fuzz.failed.
void require(bool condition, const char* what, const QByteArray& input);

} // namespace varnhold::test

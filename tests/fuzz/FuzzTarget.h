#pragma once

#include <QByteArrayList>

#include <vector>

namespace varnhold::test {

/// Each target is one source that defines these two; FuzzMain.cpp drives it.

/// Reads the input, and requires what has to hold whatever it is.
void check(const QByteArray& input);
/// What the format is made of, for the damage that the driver does.
const std::vector<QByteArray>& pieces();

/// The parts of a text between its "|", behind those that no literal can hold.
inline std::vector<QByteArray> piecesOf(const QByteArray& joined, std::vector<QByteArray> all = {})
{
    for (const QByteArray& part : joined.split('|'))
        all.push_back(part);
    return all;
}

/// Ends the program by abort() when the condition does not hold, after writing the input to x_fuzz.failed.
void require(bool condition, const char* what, const QByteArray& input);

} // namespace varnhold::test

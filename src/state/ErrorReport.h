#pragma once

#include "platform/MessageBoxes.h"
#include "platform/RunTimeError.h"

namespace varnhold {

/// The two forms of the report's third label; each routine has its own.
enum class DescriptionLabel {
    WithBlank,    ///< "Err Description: "
    WithoutBlank, ///< "Err Description:"
};

/// The box that a guarded routine shows before it leaves.
void reportError(MessageBoxes& boxes, const RunTimeError& error, DescriptionLabel label);
/// With a fourth line, which names the file.
void reportError(MessageBoxes& boxes, const RunTimeError& error, DescriptionLabel label, const QString& file);

/// Treatment "report": runs the body; a failure shows the report, and the body is left. True when it ran
/// through.
template <typename Body> bool reporting(MessageBoxes& boxes, DescriptionLabel label, Body&& body)
{
    try {
        body();
        return true;
    } catch (const RunTimeError& error) {
        reportError(boxes, error, label);
        return false;
    }
}

/// Treatment "silent": runs the body; a failure leaves it without a word. True when it ran through.
template <typename Body> bool silently(Body&& body)
{
    try {
        body();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

/// Treatment "resume" is silently() round each statement, since the next statement runs.

} // namespace varnhold

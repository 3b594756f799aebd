#pragma once

#include <QString>

namespace varnhold {

class RunTimeError;

/// Text of the box for a skin that lacks a file.
QString missingSkinFileText(const RunTimeError& error);
/// Of any other failure while a skin is applied.
QString skinErrorText(const RunTimeError& error);
/// Of a failure while the main window changes its size.
QString layoutErrorText(const RunTimeError& error);

/// Of a picture that the user has chosen and that cannot be shown.
QString pictureNotShownText(const RunTimeError& error);

/// What the splash says when the skin's folder is gone.
QString skinNotFoundStatus();
QString selectSkinFolderMessage();

} // namespace varnhold

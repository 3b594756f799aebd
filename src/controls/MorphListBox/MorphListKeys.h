#pragma once

#include <QtGlobal>

namespace varnhold {

/// Key codes of KeyDown and KeyUp. Letters and digits are their upper-case characters, F1 to F24 follow 112.
namespace keycode {
inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
inline constexpr int shift = 16;
inline constexpr int ctrl = 17;
inline constexpr int alt = 18;
inline constexpr int escape = 27;
inline constexpr int space = 32;
inline constexpr int pageUp = 33;
inline constexpr int pageDown = 34;
inline constexpr int end = 35;
inline constexpr int home = 36;
inline constexpr int left = 37;
inline constexpr int up = 38;
inline constexpr int right = 39;
inline constexpr int down = 40;
inline constexpr int insert = 45;
inline constexpr int del = 46;
inline constexpr int f1 = 112;
} // namespace keycode

/// The key code of a Qt::Key; 0 for a key that has none here.
int keyCodeOf(int key);

} // namespace varnhold

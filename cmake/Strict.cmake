# One interface target carries the warnings and the bans; everything of ours links it.
add_library(varnhold_strict INTERFACE)

target_compile_options(varnhold_strict INTERFACE
  -Wall -Wextra -Wpedantic -Werror
  -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual -Woverloaded-virtual
  -Wconversion -Wno-sign-conversion -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough)

target_compile_definitions(varnhold_strict INTERFACE
  QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_JAVA_STYLE_ITERATORS QT_STRICT_ITERATORS
  QT_DISABLE_DEPRECATED_BEFORE=0x060400
  VARNHOLD_VERSION="${PROJECT_VERSION}")

if(VARNHOLD_SANITIZE)
  target_compile_options(varnhold_strict INTERFACE
    -fsanitize=${VARNHOLD_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(varnhold_strict INTERFACE -fsanitize=${VARNHOLD_SANITIZE})
endif()

# The toolkit's headers take two thirds of a file's compile time, so each family of targets reads them once.
# Off for the linter, which then sees whether each file names all that it uses.
option(VARNHOLD_PCH "Precompile the toolkit's headers" ON)

set(varnhold_core_headers
  <QByteArray> <QDir> <QFile> <QHash> <QObject> <QPointer> <QRect> <QString> <QStringList> <QTimer> <QUrl> <QVariant>
  <algorithm> <array> <functional> <map> <memory> <optional> <string> <utility> <vector>)
set(varnhold_ui_headers
  <QAbstractItemModel> <QAccessible> <QApplication> <QImage> <QKeyEvent> <QLabel> <QListWidget> <QMenu> <QMouseEvent>
  <QPainter> <QPixmap> <QPlainTextEdit> <QStyle> <QTextDocument> <QTextEdit> <QWidget> <QWindow>)

# precompile(target headers...)
function(precompile target)
  if(VARNHOLD_PCH)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# precompiled_as(target other): the other target's, which is compiled with the same flags.
function(precompiled_as target other)
  if(VARNHOLD_PCH)
    target_precompile_headers(${target} REUSE_FROM ${other})
  endif()
endfunction()

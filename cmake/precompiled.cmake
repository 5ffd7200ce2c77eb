# What makes the sanitized builds quicker. The optimised programs are built without any of it, so that a source
# that forgets to include what it uses does not compile there.

# Headers that nearly every source of a target takes in, compiled once for it: those of the standard library, of
# Qt and of GoogleTest, never the project's own.
function(norvik_precompile target)
  if(NORVIK_PRECOMPILED)
    target_precompile_headers(${target} PRIVATE ${ARGN})
  endif()
endfunction()

# Tests are compiled without optimisation, which costs three times what it saves them; what they test is not.
function(norvik_leave_plain target)
  if(NORVIK_SANITIZE)
    target_compile_options(${target} PRIVATE -O0)
  endif()
endfunction()

set(NORVIK_STANDARD_HEADERS
  <algorithm> <array> <cstdint> <functional> <map> <memory> <optional> <string> <string_view> <vector>)
set(NORVIK_QT_HEADERS
  <QAction> <QApplication> <QBoxLayout> <QLabel> <QLineEdit> <QMainWindow> <QMouseEvent> <QPainter> <QPushButton>
  <QStyle> <QTimer> <QWidget>)

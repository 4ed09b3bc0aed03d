# How every target of this project is compiled. Warnings and sanitizers are usage requirements, never global flags.
add_library(lineforge_options INTERFACE)
target_compile_features(lineforge_options INTERFACE cxx_std_20)
target_compile_definitions(lineforge_options INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CONTEXTLESS_CONNECT
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_USE_QSTRINGBUILDER
    # What later versions advise against is still the way of the oldest one that this project is built with.
    QT_WARN_DEPRECATED_UP_TO=0x060400)
target_compile_options(lineforge_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${LINEFORGE_WERROR}>:-Werror>)
if(LINEFORGE_SANITIZE)
    # With their checks in between, the compiler takes texts in an optional for uninitialised that aren't.
    target_compile_options(lineforge_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                       -fno-sanitize-recover=undefined -Wno-maybe-uninitialized)
    target_link_options(lineforge_options INTERFACE -fsanitize=address,undefined)
endif()
if(LINEFORGE_FUZZ)
    target_compile_options(lineforge_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
                                                       -fno-sanitize-recover=undefined)
    target_link_options(lineforge_options INTERFACE -fsanitize=address,undefined)
endif()

# For tests of real windows under the address sanitizer: the toolkit brings in libraries that never give back what they
# hold.
set(LEAK_SUPPRESSIONS "LSAN_OPTIONS=suppressions=${CMAKE_SOURCE_DIR}/tests/leak-suppressions.txt")

# What nearly every source reads of the standard library and the toolkit, read once for each of these groups of targets.
# Each source still includes what it uses: a build without these headers (CMAKE_DISABLE_PRECOMPILE_HEADERS) must pass.
set(PRECOMPILED_CORE
    <algorithm> <array> <functional> <map> <memory> <optional> <string> <utility> <variant> <vector>
    <QByteArray> <QColor> <QDir> <QFile> <QFileInfo> <QFont> <QHash> <QImage> <QList> <QPainter> <QString> <QStringList>)
set(PRECOMPILED_TESTS ${PRECOMPILED_CORE} <gmock/gmock.h> <gtest/gtest.h>)
set(PRECOMPILED_WIDGETS ${PRECOMPILED_CORE} <QtWidgets>)
set(PRECOMPILED_WINDOW_TESTS ${PRECOMPILED_TESTS} <QtTest> <QtWidgets>)

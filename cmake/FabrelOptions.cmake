# Compiler settings that every target of the project shares.

# ccache, where there is one. Precompiled headers need its two sloppiness settings.
find_program(FABREL_CCACHE ccache)
if(FABREL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${FABREL_CCACHE}")
endif()

# Settings of our own targets; never exported to an application.
add_library(FabrelReglages INTERFACE)
target_compile_definitions(FabrelReglages INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
)
target_compile_options(FabrelReglages INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall;-Wextra;-Wpedantic;-Wshadow;-Wnon-virtual-dtor;-Woverloaded-virtual>
    $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>
    $<$<BOOL:${FABREL_AVERTISSEMENTS_FATALS}>:-Werror>
)
if(FABREL_ASSAINISSEURS)
    target_compile_options(FabrelReglages INTERFACE
        -fsanitize=${FABREL_ASSAINISSEURS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(FabrelReglages INTERFACE -fsanitize=${FABREL_ASSAINISSEURS})
endif()

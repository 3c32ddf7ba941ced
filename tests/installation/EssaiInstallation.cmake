file(REMOVE_RECURSE "${ESSAI}")
set(prefixe "${ESSAI}/prefixe")

function(execute)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE code OUTPUT_VARIABLE sortie
        ERROR_VARIABLE erreurs)
    if(NOT code EQUAL 0)
        list(JOIN ARGV " " commande)
        message(FATAL_ERROR "${commande}: ${code}\n${sortie}${erreurs}")
    endif()
    set(SORTIE "${sortie}" PARENT_SCOPE)
endfunction()

function(verifie_sortie)
    string(STRIP "${SORTIE}" sortie)
    if(NOT sortie STREQUAL "Remove “été” rgba(220,220,220,255)")
        message(FATAL_ERROR "unexpected output: ${sortie}")
    endif()
endfunction()

execute("${CMAKE_COMMAND}" --install "${CONSTRUCTION}" --prefix "${prefixe}")

# No installed header may name a folder of the source tree, or a private header.
file(GLOB_RECURSE entetes "${prefixe}/include/*.h")
foreach(entete IN LISTS entetes)
    file(STRINGS "${entete}" inclusions REGEX "^#include \"")
    foreach(inclusion IN LISTS inclusions)
        string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" chemin "${inclusion}")
        if(NOT EXISTS "${prefixe}/include/${chemin}")
            message(FATAL_ERROR "${entete} includes ${chemin}, which is not installed")
        endif()
    endforeach()
    if(entete MATCHES "_p\\.h$")
        message(FATAL_ERROR "${entete} is private and installed")
    endif()
endforeach()

execute("${CMAKE_COMMAND}" -S "${SOURCE}/application" -B "${ESSAI}/cmake" -G Ninja
    "-DCMAKE_PREFIX_PATH=${prefixe}" "-DCMAKE_CXX_COMPILER=${COMPILATEUR}"
    "-DCMAKE_BUILD_TYPE=${TYPE}" "-DCMAKE_CXX_FLAGS=${OPTIONS}")
execute("${CMAKE_COMMAND}" --build "${ESSAI}/cmake")
execute("${ESSAI}/cmake/application")
verifie_sortie()

set(ENV{PKG_CONFIG_PATH} "${prefixe}/${LIBDIR}/pkgconfig")
execute(pkg-config --cflags --libs FabrelGui)
separate_arguments(drapeaux UNIX_COMMAND "${SORTIE} ${OPTIONS}")
execute("${COMPILATEUR}" -std=c++20 -fPIC "${SOURCE}/application/main.cpp" ${drapeaux}
    "-Wl,-rpath,${prefixe}/${LIBDIR}" -o "${ESSAI}/application-pkgconfig")
execute("${ESSAI}/application-pkgconfig")
verifie_sortie()

# The example of the first page, as it stands there.
file(READ "${SOURCE}/../../README.md" page)
string(REGEX MATCH "```cpp\n(.*)\n```" bloc "${page}")
string(REGEX REPLACE "\n```.*" "" exemple "${CMAKE_MATCH_1}")
file(WRITE "${ESSAI}/exemple.cpp" "${exemple}\n")
execute("${COMPILATEUR}" -std=c++20 -fPIC "${ESSAI}/exemple.cpp" ${drapeaux} -o "${ESSAI}/exemple")

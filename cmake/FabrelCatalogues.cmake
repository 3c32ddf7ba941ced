# The catalogues and the resource data of a library.

find_program(FABREL_MSGFMT msgfmt REQUIRED)

# fabrel_ressources(<target> <qrc> <output> ENTREES <count> PO <files...>)
#
# Compiles the .po files to .mo files, each of exactly <count> entries (header included),
# and the resource collection <qrc>, which lists static files beside itself and the catalogues under
# fichiers/, to the C++ file <output>.
function(fabrel_ressources cible qrc sortie)
    cmake_parse_arguments(PARSE_ARGV 3 ARG "" "ENTREES" "PO")
    cmake_path(GET qrc PARENT_PATH source)
    set(compilation "${CMAKE_CURRENT_BINARY_DIR}/ressources")
    file(READ "${qrc}" collection)
    string(REGEX MATCHALL "<file>[^<]+</file>" entrees "${collection}")

    set(dependances)
    foreach(po IN LISTS ARG_PO)
        cmake_path(GET po STEM nom)
        set(mo "${compilation}/fichiers/${nom}.mo")
        # Little-endian whatever the machine: the file is the same in every package.
        add_custom_command(
            OUTPUT "${mo}"
            COMMAND "${FABREL_MSGFMT}" --check-format --check-domain --endianness=little -o "${mo}" "${po}"
            COMMAND "${CMAKE_COMMAND}" -D "FICHIER=${mo}" -D "ENTREES=${ARG_ENTREES}"
                -P "${PROJECT_SOURCE_DIR}/cmake/VerifieCatalogue.cmake"
            DEPENDS "${po}" "${PROJECT_SOURCE_DIR}/cmake/VerifieCatalogue.cmake"
            COMMENT "Compiling the catalogue ${nom}.mo"
            VERBATIM)
        list(APPEND dependances "${mo}")
    endforeach()

    # A file that goes by another name than its own.
    string(REGEX MATCHALL "<file alias=\"[^\"]+\">[^<]+</file>" alias "${collection}")
    foreach(entree IN LISTS alias)
        string(REGEX REPLACE "^.*>([^<]+)</file>$" "\\1" chemin "${entree}")
        set(absolu "${source}/${chemin}")
        list(APPEND dependances "${absolu}")
        string(REPLACE ">${chemin}<" ">${absolu}<" entreeAbsolue "${entree}")
        string(REPLACE "${entree}" "${entreeAbsolue}" collection "${collection}")
    endforeach()

    foreach(entree IN LISTS entrees)
        string(REGEX REPLACE "</?file>" "" chemin "${entree}")
        if(chemin MATCHES "\\.mo$")
            set(absolu "${compilation}/${chemin}")
        else()
            set(absolu "${source}/${chemin}")
            list(APPEND dependances "${absolu}")
        endif()
        string(REPLACE "${entree}" "<file alias=\"${chemin}\">${absolu}</file>"
            collection "${collection}")
    endforeach()
    file(CONFIGURE OUTPUT "${compilation}/${cible}.qrc" CONTENT "${collection}" @ONLY)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${qrc}")

    # Format 3 and zlib: what every Qt 6 reads, with or without its zstd feature.
    add_custom_command(
        OUTPUT "${sortie}"
        COMMAND Qt6::rcc --name ${cible} --format-version 3 --compress-algo zlib
            -o "${sortie}" "${compilation}/${cible}.qrc"
        DEPENDS "${compilation}/${cible}.qrc" ${dependances}
        COMMENT "Compiling the resources of ${cible}"
        VERBATIM)
endfunction()

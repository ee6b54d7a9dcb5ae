# The Debian packages that `cpack -G DEB` makes in the build folder: numora, libbignum1, libbignum-dev.
foreach(package "program;numora" "library;libbignum1" "development;libbignum-dev")
    list(GET package 0 component)
    list(GET package 1 name)
    string(TOUPPER "${component}" COMPONENT)
    set(CPACK_DEBIAN_${COMPONENT}_PACKAGE_NAME "${name}")
    set(CPACK_DEBIAN_${COMPONENT}_FILE_NAME DEB-DEFAULT)
    install(FILES debian/copyright debian/changelog
        DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${name}" COMPONENT ${component})
endforeach()

set(CPACK_PACKAGE_NAME numora)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "") # each package has its own
set(CPACK_PACKAGE_VENDOR "Numora")
set(CPACK_PACKAGE_CONTACT "Numora <numora@numora.home.arpa>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_COMPONENTS_ALL program library development)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# Between the copy of the files and the archive: what Debian compresses, and one time for all files.
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_SOURCE_DIR}/debian/Stage.cmake")

# What is linked is found by dpkg-shlibdeps; not so the plug-ins for pictures and animations, and Qt's
# Spanish texts. Without the plug-ins for animations they are still pictures.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${CMAKE_LIBRARY_OUTPUT_DIRECTORY}")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS
    "libbignum1 (= ${PROJECT_VERSION})"
    libqt6svg6 libqt6sql6-sqlite qt6-translations-l10n fonts-dejavu-core
    gstreamer1.0-plugins-base gstreamer1.0-plugins-good)
list(JOIN CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS ", " CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "xdg-utils")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION education)
foreach(override "program;numora" "library;libbignum1")
    list(GET override 0 component)
    list(GET override 1 name)
    install(FILES debian/${name}.lintian RENAME ${name}
        DESTINATION "${CMAKE_INSTALL_DATADIR}/lintian/overrides" COMPONENT ${component})
endforeach()
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION "interactive lessons in discrete mathematics, in Spanish
Lessons on primes, Euclid's algorithm, congruences, units, recursion and
public-key cryptography, with tools that compute with whole numbers of any
size, questions that the program judges, and pages to read on.")

set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
# Since which version each symbol is there: all of them since the first.
file(STRINGS "${CMAKE_SOURCE_DIR}/bignum/exports.map" lines)
string(REGEX REPLACE ".*global:(.*)local:.*" "\\1" names "${lines}")
string(REGEX MATCHALL "[A-Za-z]+" names "${names}")
list(SORT names)
list(TRANSFORM names REPLACE "(.+)" " \\1@BIGNUM_1 1.0.1")
list(JOIN names "\n" names)
file(CONFIGURE OUTPUT "${CMAKE_CURRENT_BINARY_DIR}/symbols"
    CONTENT "libbignum.so.1 libbignum1 #MINVER#\n* Build-Depends-Package: libbignum-dev\n BIGNUM_1@BIGNUM_1 1.0.1\n@names@\n" @ONLY)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_SOURCE_DIR}/debian/triggers" "${CMAKE_CURRENT_BINARY_DIR}/symbols")
set(CPACK_DEBIAN_LIBRARY_DESCRIPTION "arithmetic on numbers of any size, exchanged as texts
Primality, factoring, modular arithmetic, congruences and the evaluation of
expressions over the integers and the rationals, behind a plain C interface
that takes and gives numbers as texts of decimal digits.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libbignum1 (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "arithmetic on numbers of any size: to build on it
The header of libbignum, what the linker and pkg-config need, the manual page
of its C interface, and examples in C and in Python.")
include(CPack)

# What is installed beside the programs, and the Debian packages: palvestrin-print for a machine that prints,
# palvestrin-tools for people on the command line, palvestrin-desktop for people with a screen. Only the last one
# needs a GUI library.
#
#   cpack --config build/release/CPackConfig.cmake

install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
# As in the source tree, so that the documents' links lead somewhere there too.
install(FILES README.md SECURITY.md CHANGELOG.md packaging/copyright DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES translations/movement-types.txt DESTINATION ${CMAKE_INSTALL_DOCDIR}/translations)
palvestrin_compressed(${PROJECT_SOURCE_DIR}/packaging/changelog changelog.gz)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/changelog.gz DESTINATION ${CMAKE_INSTALL_DOCDIR})

# The other packages depend on this version of palvestrin-print, and their documents are its documents.
foreach(component tools desktop cups)
  set(link ${CMAKE_CURRENT_BINARY_DIR}/packaging/palvestrin-${component})
  file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/packaging)
  file(CREATE_LINK palvestrin-print ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION ${CMAKE_INSTALL_DATADIR}/doc COMPONENT ${component})
endforeach()

install(FILES ${PROJECT_SOURCE_DIR}/packaging/palvestrin-cups.lintian-overrides
  DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME palvestrin-cups COMPONENT cups)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Palvestrin Print <print@palvestrin.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL print tools desktop cups)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE palvestrin-print)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Whatever the umask of whoever makes the packages.
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/PackageModes.cmake)
# Each package has a summary of its own: the first line of its description.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")

set(CPACK_DEBIAN_PRINT_PACKAGE_NAME palvestrin-print)
set(CPACK_DEBIAN_PRINT_DESCRIPTION
"print renderer of a restaurant and shop ordering application
Renders one print job, an XML file written by the ordering application, to what
goes to a line printer or a fiscal cash register: kitchen tickets, receipts,
invoices, delivery notes, reports, lists of sold items and statements of
account.

This package has the renderer and its documents. It needs no GUI library.")
set(CPACK_DEBIAN_PRINT_PACKAGE_RECOMMENDS palvestrin-tools)

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME palvestrin-tools)
set(CPACK_DEBIAN_TOOLS_DESCRIPTION
"command line tools for Palvestrin Print
The command palvestrin lists, explains, checks and changes the settings of the
print renderer, completes them in bash and zsh, shows on a terminal what a
print job prints, and prints jobs on ESC/POS receipt printers. It needs no GUI
library.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "palvestrin-print (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME palvestrin-desktop)
set(CPACK_DEBIAN_DESKTOP_DESCRIPTION
"windows and pictures of Palvestrin Print
The window palvestrin-settings shows the settings of each document beside its
paper, which follows every change, and marks what is wrong. The program
palvestrin-draw draws the paper of a print job as PNG, PDF or SVG.

This package is for people with a screen; a till does without it.")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS
  "palvestrin-print (= ${PROJECT_VERSION}), palvestrin-tools (= ${PROJECT_VERSION}), fonts-dejavu-core, qt6-translations-l10n")

set(CPACK_DEBIAN_CUPS_PACKAGE_NAME palvestrin-cups)
set(CPACK_DEBIAN_CUPS_DESCRIPTION
"receipt printers for CUPS, with a backend that knows what happened
The backend palvestrin asks receipt printers whether a ticket is on paper,
prints none twice, and has a person look for what nobody knows. The package
has models for receipt printers, too.")
set(CPACK_DEBIAN_CUPS_PACKAGE_DEPENDS "palvestrin-print (= ${PROJECT_VERSION}), cups")
set(CPACK_DEBIAN_CUPS_PACKAGE_ENHANCES palvestrin-tools)
set(CPACK_DEBIAN_CUPS_PACKAGE_CONTROL_EXTRA ${PROJECT_SOURCE_DIR}/packaging/cups/postinst)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SUGGESTS "palvestrin-desktop, palvestrin-cups")

include(CPack)

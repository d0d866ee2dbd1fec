# What is installed beside the programs, and the three Debian packages: palvestrin-print for a machine that prints,
# palvestrin-tools for people on the command line, palvestrin-desktop for people with a screen.
#
#   cpack --config build/release/CPackConfig.cmake

install(DIRECTORY examples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples)
install(FILES README.md SECURITY.md docs/configuration.md docs/job-format.md docs/output-format.md docs/services.md
  DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES man/palvestrin-print.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "Palvestrin Print <print@palvestrin.example>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL print tools desktop)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_PRINT_PACKAGE_NAME palvestrin-print)
set(CPACK_COMPONENT_PRINT_DESCRIPTION "Renders one print job, an XML file, to what goes to a line printer or a fiscal cash register: kitchen tickets,
receipts, invoices, delivery notes, reports.")
set(CPACK_DEBIAN_PRINT_PACKAGE_RECOMMENDS palvestrin-tools)

set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME palvestrin-tools)
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "The command palvestrin, which lists, checks and changes the configuration.")
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "palvestrin-print (= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_DESKTOP_PACKAGE_NAME palvestrin-desktop)
set(CPACK_COMPONENT_DESKTOP_DESCRIPTION "The window palvestrin-settings, which shows and edits the configuration, and palvestrin-draw, which draws what a
job prints.")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_DEPENDS "palvestrin-tools (= ${PROJECT_VERSION}), fonts-dejavu-core")

include(CPack)

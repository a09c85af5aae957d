# The window as it stands: its form, its states, the setup panel, the text lines; and the program as a whole.

# Windows whose time servers answer as a test wants, and whose list of versions is a test's.
add_library(brumalogger_timetests STATIC
  setuppanel.cpp setuppanel.h
  timerig.cpp timerig.h
  windowinspector.cpp windowinspector.h
  zonerig.cpp zonerig.h
)
target_link_libraries(brumalogger_timetests PUBLIC brumalogger_ntpresponder brumalogger_proceduretests brumalogger_time)
add_library(brumalogger_prompttests STATIC updaterig.cpp updaterig.h)
target_link_libraries(brumalogger_prompttests PUBLIC
  brumalogger_proceduretests
  brumalogger_update
  brumalogger_webtests
)

brumalogger_add_test(tst_buttonicon SOURCES tst_buttonicon.cpp LINK brumalogger_proceduretests)
brumalogger_add_test(tst_devicetext SOURCES tst_devicetext.cpp LINK brumalogger_app)
brumalogger_add_test(tst_stepprogress SOURCES tst_stepprogress.cpp LINK brumalogger_app X11)
foreach(concern form layout shell changes copying guide texts zone about)
  brumalogger_add_test(tst_mainwindow_${concern} SOURCES tst_mainwindow_${concern}.cpp
    LINK brumalogger_proceduretests MOCK X11)
endforeach()
foreach(concern setup range)
  brumalogger_add_test(tst_mainwindow_${concern} SOURCES tst_mainwindow_${concern}.cpp
    LINK brumalogger_timetests MOCK X11)
endforeach()
brumalogger_add_test(tst_mainwindow_settings SOURCES tst_mainwindow_settings.cpp
  LINK brumalogger_proceduretests
  MOCK NETWORK X11
)
foreach(concern time zonelabel)
  brumalogger_add_test(tst_mainwindow_${concern} SOURCES tst_mainwindow_${concern}.cpp
    LINK brumalogger_timetests
    MOCK NETWORK X11
  )
endforeach()
foreach(concern
    validity validitydialogs validityinterruptions validityquestions
    timesync timesyncfaults timesyncvalues timeanswers poolanswers
    zoneeditor zoneeditordates zoneeditordisclaimer zoneeditorinterruptions zoneeditorwrites
    extendedinterruptions rangeinterruptions repair)
  brumalogger_add_test(tst_mainwindow_${concern} SOURCES tst_mainwindow_${concern}.cpp
    LINK brumalogger_timetests
    MOCK NETWORK
  )
endforeach()
brumalogger_add_test(tst_mainwindow_servers SOURCES tst_mainwindow_servers.cpp
  LINK brumalogger_timetests
  MOCK TIME_SERVERS
)
brumalogger_add_test(tst_mainwindow_updates SOURCES tst_mainwindow_updates.cpp
  LINK brumalogger_prompttests
  MOCK NETWORK X11
)
foreach(concern prompts mandatoryprompts promptboxes promptdialogs promptfiledialogs promptchecks)
  brumalogger_add_test(tst_mainwindow_${concern} SOURCES tst_mainwindow_${concern}.cpp
    LINK brumalogger_prompttests
    MOCK NETWORK
  )
endforeach()
brumalogger_add_test(tst_mainwindow_promptanswers SOURCES tst_mainwindow_promptanswers.cpp
  LINK brumalogger_prompttests brumalogger_timetests
  MOCK NETWORK
)
brumalogger_add_test(tst_mainwindow_updatecheck SOURCES tst_mainwindow_updatecheck.cpp
  LINK brumalogger_proceduretests brumalogger_update brumalogger_webtests
  MOCK WEB_SERVER
)
brumalogger_add_test(tst_window_languages SOURCES tst_window_languages.cpp
  LINK brumalogger_timetests
  MOCK NETWORK X11
)
add_dependencies(tst_window_languages brumalogger_translations)
target_compile_definitions(tst_window_languages PRIVATE TRANSLATIONS="${PROJECT_BINARY_DIR}/translations")
target_compile_definitions(tst_mainwindow_about PRIVATE PROGRAM_VERSION="${PROJECT_VERSION}")
target_compile_definitions(tst_mainwindow_layout PRIVATE FORM_FILE="${PROJECT_SOURCE_DIR}/app/mainwindow.ui")

# The program's main function inside a test, which is the only way to look at its widgets.
get_target_property(lrelease Qt5::lrelease IMPORTED_LOCATION)
brumalogger_add_test(tst_main_language
  SOURCES markedtranslation.cpp markedtranslation.h tst_main_language.cpp ${PROJECT_SOURCE_DIR}/app/main.cpp
  LINK brumalogger_testsupport
  NETWORK
)
set_source_files_properties(${PROJECT_SOURCE_DIR}/app/main.cpp PROPERTIES
  COMPILE_DEFINITIONS main=programMain
  SKIP_PRECOMPILE_HEADERS ON
)
target_compile_definitions(tst_main_language PRIVATE
  LRELEASE_FILE="${lrelease}"
  TRANSLATION_SOURCE="${PROJECT_SOURCE_DIR}/resources/translations/brumaloger-config-gui_it.ts"
)

# Closing a window from outside takes a real X server, and the test is a client of it like the program itself.
find_package(PkgConfig REQUIRED)
pkg_check_modules(XCB REQUIRED IMPORTED_TARGET xcb)
foreach(program tst_program tst_program_presets)
  add_executable(${program} programrig.cpp programrig.h ${program}.cpp)
  target_link_libraries(${program} PRIVATE brumalogger_testsupport PkgConfig::XCB)
  target_compile_definitions(${program} PRIVATE
    PROGRAM_FILE="$<TARGET_FILE:brumalogger-config-gui>"
    ITALIAN_FILE="${PROJECT_BINARY_DIR}/translations/brumaloger-config-gui_it.qm"
  )
  add_dependencies(${program} brumalogger-config-gui)
  set(folder ${CMAKE_CURRENT_BINARY_DIR}/${program}_folder)
  file(MAKE_DIRECTORY ${folder})
  set(command $<TARGET_FILE:${program}>)
  if(program STREQUAL tst_program_presets)
    list(PREPEND command ${PROJECT_SOURCE_DIR}/tests/on-mock-usb)
  endif()
  add_test(NAME ${program}
    COMMAND ${PROJECT_SOURCE_DIR}/tests/network/in-private-network ${PROJECT_SOURCE_DIR}/tests/on-x-server ${command}
    WORKING_DIRECTORY ${folder})
  set_tests_properties(${program} PROPERTIES ENVIRONMENT "${test_environment}" TIMEOUT 600)
endforeach()

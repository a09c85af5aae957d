# Presets in the window: saving, loading, and what comes in between.
add_library(brumalogger_presettests STATIC
  presetrig.cpp presetrig.h
  waitingpresetrig.cpp waitingpresetrig.h
)
target_link_libraries(brumalogger_presettests PUBLIC brumalogger_timetests)
foreach(concern saving loading values dates roundtrip range languages zone zonewrites interruptions
    lostdevice)
  brumalogger_add_test(tst_mainwindow_presets_${concern} SOURCES tst_mainwindow_presets_${concern}.cpp
    LINK brumalogger_presettests
    MOCK NETWORK
  )
endforeach()

# Once more where the computer's digits aren't those of ASCII: those in a file are.
add_test(NAME tst_mainwindow_presets_saving_persian
  COMMAND ${PROJECT_SOURCE_DIR}/tests/network/in-private-network ${CMAKE_COMMAND} -E env LC_ALL=fa_IR.UTF-8
    ${PROJECT_SOURCE_DIR}/tests/on-mock-usb $<TARGET_FILE:tst_mainwindow_presets_saving>
    savesEveryKey savesWhatAnExtendedLoggerHas)
set_tests_properties(tst_mainwindow_presets_saving_persian PROPERTIES ENVIRONMENT "${test_environment}" TIMEOUT 600)

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

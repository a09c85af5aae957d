# The procedures, driven through the real window and a simulated logger.
add_library(brumalogger_proceduretests STATIC
  extendedrig.cpp extendedrig.h
  procedurerig.cpp procedurerig.h
  progresswatch.cpp progresswatch.h
  pulledplug.cpp pulledplug.h
  quickwire.cpp quickwire.h
  readingrig.cpp readingrig.h
  windowstate.cpp windowstate.h
  windowwords.cpp windowwords.h
)
target_link_libraries(brumalogger_proceduretests PUBLIC brumalogger_testsupport)
foreach(concern
    discovery connect
    read readfailures readmoments readreplies
    write writefailures results
    start
    extendedread condition extendedfailures extendedclosing extendedunplug unlock options
    unplug closing interruptions)
  brumalogger_add_test(tst_mainwindow_${concern} SOURCES tst_mainwindow_${concern}.cpp
    LINK brumalogger_proceduretests MOCK)
endforeach()
brumalogger_add_test(tst_mainwindow_flow SOURCES tst_mainwindow_flow.cpp LINK brumalogger_proceduretests MOCK X11)

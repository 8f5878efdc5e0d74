# The program itself, on top of all layers and therefore defined after them.
if(TARGET velix_gui)
    velix_library(velix_startup QT_OBJECTS
        SOURCES core/DialogSplash.cpp core/Kernel.cpp core/Language.cpp core/SignalWatcher.cpp core/Toolkit.cpp
        LINK velix_gui)
    velix_executable(velix
        SOURCES core/main.cpp
        LINK velix_startup)
    if(TARGET velix_stage_resources)
        add_dependencies(velix velix_stage_resources)
    endif()
endif()

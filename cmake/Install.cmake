# Installed, the program keeps the layout of the build folder, since it looks for its resources
# beside its own folder: PREFIX/lib/velix/{bin,resources}, with links to it in PREFIX/bin.
if(TARGET velix)
    # The platform's libraries lie beside the program, as in the build folder.
    foreach(library tessel openstreetmap viewlib)
        if(TARGET ${library})
            install(TARGETS ${library} LIBRARY DESTINATION lib/velix/bin)
            set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
        endif()
    endforeach()
    set_target_properties(velix PROPERTIES INSTALL_RPATH "$ORIGIN")
    foreach(folder demo views) # the build makes its own files beside them
        if(EXISTS ${PROJECT_SOURCE_DIR}/resources/${folder})
            install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/${folder}
                DESTINATION lib/velix/resources)
        endif()
    endforeach()
    foreach(program velix velix-card)
        if(TARGET ${program})
            install(TARGETS ${program} RUNTIME DESTINATION lib/velix/bin)
            set(link ${CMAKE_BINARY_DIR}/links/${program})
            file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
            file(CREATE_LINK ../lib/velix/bin/${program} ${link} SYMBOLIC)
            install(FILES ${link} DESTINATION bin)
        endif()
    endforeach()
    install(FILES ${PROJECT_SOURCE_DIR}/packaging/velix.desktop DESTINATION share/applications)
    install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/velix.svg
        DESTINATION share/icons/hicolor/scalable/apps)
endif()

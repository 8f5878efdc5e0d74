# Installed, the program keeps the layout of the build folder, since it looks for its resources
# beside its own folder: PREFIX/lib/velix/{bin,resources}, with links to it in PREFIX/bin.
if(TARGET velix)
    # The platform library lies beside the program, as in the build folder.
    install(TARGETS tessel LIBRARY DESTINATION lib/velix/bin)
    set_target_properties(velix PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(DIRECTORY ${CMAKE_BINARY_DIR}/resources/ DESTINATION lib/velix/resources)
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

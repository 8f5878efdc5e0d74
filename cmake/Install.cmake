# Installed, the program keeps the layout of the build folder, since it looks for its resources
# beside its own folder: PREFIX/lib/velix/{bin,resources}, with links to it in PREFIX/bin.

# The platform's libraries are beside the program, as in the build folder.
foreach(library tessel openstreetmap viewlib)
    install(TARGETS ${library} LIBRARY DESTINATION lib/velix/bin)
    set_target_properties(${library} PROPERTIES INSTALL_RPATH "$ORIGIN")
endforeach()
set_target_properties(velix PROPERTIES INSTALL_RPATH "$ORIGIN")

# The build makes its own files beside these folders.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/resources/demo ${PROJECT_SOURCE_DIR}/resources/views
    DESTINATION lib/velix/resources)

file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
foreach(program velix velix-card)
    install(TARGETS ${program} RUNTIME DESTINATION lib/velix/bin)
    set(link ${CMAKE_BINARY_DIR}/links/${program})
    file(CREATE_LINK ../lib/velix/bin/${program} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION bin)
endforeach()

install(FILES ${PROJECT_SOURCE_DIR}/packaging/velix.desktop DESTINATION share/applications)
install(FILES ${PROJECT_SOURCE_DIR}/resources/icons/velix.svg
    DESTINATION share/icons/hicolor/scalable/apps)

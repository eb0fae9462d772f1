# The Windows targets: the program, the stand-in game, and what both need from the linker.
enable_language(RC)

target_compile_definitions(quirn_options INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX STRICT _WIN32_WINNT=0x0601)
# The folder that is built in leaves no trace in the programs.
target_compile_options(quirn_options INTERFACE -ffunction-sections -fdata-sections
                                               -ffile-prefix-map=${CMAKE_SOURCE_DIR}/=)
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    # Windows calls back with a stack aligned to 4 bytes only; SSE2 code needs 16.
    target_compile_options(quirn_options INTERFACE -msse2 -mfpmath=sse -mstackrealign)
    target_link_options(quirn_options INTERFACE -Wl,--large-address-aware)
else()
    target_link_options(quirn_options INTERFACE -Wl,--high-entropy-va)
endif()
target_link_options(quirn_options INTERFACE -static -Wl,--gc-sections
                                            # Windows 7; older numbers give a program the frames of older systems.
                                            -Wl,--major-subsystem-version,6,--minor-subsystem-version,1
                                            -Wl,--dynamicbase -Wl,--nxcompat
                                            -Wl,--no-insert-timestamp $<$<CONFIG:Release>:-s>)

file(GLOB backend_sources CONFIGURE_DEPENDS platform/win32/*.cpp)
set(dialogs_source ${CMAKE_SOURCE_DIR}/platform/win32/dialogs.cpp)  # tests have scripted ones instead
list(REMOVE_ITEM backend_sources ${dialogs_source})
add_library(quirn_backend OBJECT ${backend_sources})
target_link_libraries(quirn_backend PUBLIC quirn_options user32 gdi32 comctl32 comdlg32 advapi32 shell32 ole32 oleaut32 uuid)

# A vector picture of resources/, rendered in the sizes that Windows asks for. Only the largest icon stays compressed,
# because Wine mixes up the colours of such pictures and never needs that one.
set(icons)
function(render_icon name bits)
    set(arguments)
    set(commands)
    foreach(size ${ARGN})
        if(size EQUAL 256)
            list(APPEND arguments --raw=${name}-${size}.png)
        else()
            list(APPEND arguments ${name}-${size}.png)
        endif()
        list(APPEND commands COMMAND rsvg-convert -w ${size} -h ${size} -o ${name}-${size}.png
                                     ${CMAKE_SOURCE_DIR}/resources/${name}.svg)
    endforeach()
    add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/${name}.ico ${commands}
                       COMMAND icotool -c -b ${bits} -o ${name}.ico ${arguments}
                       DEPENDS ${CMAKE_SOURCE_DIR}/resources/${name}.svg
                       WORKING_DIRECTORY ${CMAKE_BINARY_DIR} VERBATIM)
    set(icons ${icons} ${CMAKE_BINARY_DIR}/${name}.ico PARENT_SCOPE)
endfunction()
render_icon(quirn 32 16 20 24 32 40 48 64 80 96 112 128 256)
render_icon(cookie 32 64 80 96 112 128)
render_icon(splash 24 120 150 180 210 240)  # its place from 100 to 200 %
set(resource_script ${CMAKE_SOURCE_DIR}/resources/quirn.rc)
set_source_files_properties(${resource_script} PROPERTIES OBJECT_DEPENDS
    "${icons};${CMAKE_SOURCE_DIR}/resources/quirn.manifest;${CMAKE_SOURCE_DIR}/platform/version.h")
set_property(SOURCE ${resource_script} PROPERTY INCLUDE_DIRECTORIES ${CMAKE_SOURCE_DIR} ${CMAKE_BINARY_DIR})

add_executable(QUIRN WIN32 startup/entry_win32.cpp ${dialogs_source} ${resource_script})
target_link_libraries(QUIRN PRIVATE quirn_logic quirn_backend)
set_target_properties(QUIRN PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR})

add_executable(subspace WIN32 demo/subspace.cpp)
target_link_libraries(subspace PRIVATE quirn_options user32 advapi32)
set_target_properties(subspace PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/demo)

# The texts that lie beside the program.
set(ship ${CMAKE_SOURCE_DIR}/resources/ship)
file(GLOB ship_pictures CONFIGURE_DEPENDS ${ship}/pictures/*.png)
add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/help.html
                   COMMAND ${CMAKE_SOURCE_DIR}/tools/inline-pictures ${ship}/help.html > help.html
                   DEPENDS ${CMAKE_SOURCE_DIR}/tools/inline-pictures ${ship}/help.html ${ship_pictures}
                   WORKING_DIRECTORY ${CMAKE_BINARY_DIR} VERBATIM)
foreach(text readme.txt revision.txt)
    add_custom_command(OUTPUT ${CMAKE_BINARY_DIR}/${text}
                       COMMAND ${CMAKE_COMMAND} -E copy ${ship}/${text} ${CMAKE_BINARY_DIR}/${text}
                       DEPENDS ${ship}/${text} VERBATIM)
endforeach()
add_custom_target(ship_texts DEPENDS ${CMAKE_BINARY_DIR}/help.html ${CMAKE_BINARY_DIR}/readme.txt
                                     ${CMAKE_BINARY_DIR}/revision.txt)
add_dependencies(QUIRN ship_texts)

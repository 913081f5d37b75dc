# A program for Windows has its libraries and fonts beside itself: all that is built goes into one folder with them.

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CANTORAMA_FONTS /usr/share/fonts/truetype CACHE PATH "Folder of the families of fonts that lie beside the programs")

# The faces that src/drawing/fonts.cpp names.
set(CANTORAMA_FONT_FILES
  dejavu/DejaVuSans.ttf dejavu/DejaVuSans-Bold.ttf
  lato/Lato-Black.ttf lato/Lato-BlackItalic.ttf
  liberation/LiberationSans-Regular.ttf liberation/LiberationSans-Bold.ttf
  liberation/LiberationSans-Italic.ttf liberation/LiberationSans-BoldItalic.ttf
  liberation/LiberationMono-Regular.ttf liberation/LiberationMono-Bold.ttf)
list(TRANSFORM CANTORAMA_FONT_FILES PREPEND ${CANTORAMA_FONTS}/)
file(COPY ${CANTORAMA_FONT_FILES} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/fonts)

get_target_property(core Qt6::Core IMPORTED_LOCATION_RELEASE)
get_filename_component(libraries ${core} DIRECTORY)
file(GLOB CANTORAMA_LIBRARIES ${libraries}/Qt6*.dll ${libraries}/lib*.dll)
file(COPY ${CANTORAMA_LIBRARIES} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
foreach(kind platforms imageformats)
  file(COPY ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_PLUGINS}/${kind} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
       FILES_MATCHING PATTERN "*.dll")
endforeach()

# Where a program under Wine finds what has an absolute path here.
if(NOT CMAKE_HOST_WIN32)
  set(CANTORAMA_DRIVE Z:)
endif()

# What Windows shows of a program: cantorama_program(TARGET "description")
enable_language(RC)
function(cantorama_program program description)
  string(REPLACE "." "," version_numbers ${PROJECT_VERSION},0,0)
  set(resources ${CMAKE_CURRENT_BINARY_DIR}/${program}.rc)
  configure_file(${CMAKE_SOURCE_DIR}/packaging/windows/program.rc.in ${resources} @ONLY)
  target_sources(${program} PRIVATE ${resources})
  set_property(SOURCE ${resources} TARGET_DIRECTORY ${program} PROPERTY
               OBJECT_DEPENDS "${CMAKE_SOURCE_DIR}/packaging/windows/program.manifest;${CMAKE_SOURCE_DIR}/packaging/icons/cantorama-theme-edit.ico")
endfunction()

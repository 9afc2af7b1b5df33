# How folders become targets.
#
# Files include each other by folder name, "base/Text.h", inside their own folder too. Each folder
# is published through an include directory of its own in which only its own name resolves, so a
# target sees exactly the folders that it links, and an include through a wall breaks the build.

# Adds <target> from all .cpp files of the current folder; a folder that has headers only becomes
# an INTERFACE library. Files name each other "<name>/X.h".
#   add_sifter_folder(<target> <name> [EXCLUDE file.cpp...] [LINK target...])
function(add_sifter_folder target name)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "EXCLUDE;LINK")
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  foreach(excluded IN LISTS arg_EXCLUDE)
    list(REMOVE_ITEM sources "${CMAKE_CURRENT_SOURCE_DIR}/${excluded}")
  endforeach()

  set(include_dir "${PROJECT_BINARY_DIR}/include/${target}")
  file(MAKE_DIRECTORY "${include_dir}")
  file(CREATE_LINK "${CMAKE_CURRENT_SOURCE_DIR}" "${include_dir}/${name}" SYMBOLIC)

  if(sources)
    add_library(${target} STATIC ${sources})
    target_link_libraries(${target} PRIVATE sifter_flags)
    set(scope PUBLIC)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${target} ${scope} "${include_dir}")
  target_link_libraries(${target} ${scope} ${arg_LINK})
endfunction()

# A room of src/: the target sifter_<room>, which sees the rooms named after it.
#   add_sifter_room(<room> [room...])
function(add_sifter_room room)
  list(TRANSFORM ARGN PREPEND sifter_ OUTPUT_VARIABLE rooms)
  add_sifter_folder(sifter_${room} ${room} LINK ${rooms})
endfunction()

# The Windows resource scripts of <folder> into <variable>; none for another system. A manifest
# beside them is compiled in by naming it, so a change of it must rebuild them.
function(sifter_resources variable folder)
  set(scripts)
  if(WIN32)
    file(GLOB scripts CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.rc")
    file(GLOB manifests CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.manifest")
    set_source_files_properties(${scripts} PROPERTIES OBJECT_DEPENDS "${manifests}")
  endif()
  set(${variable}
      ${scripts}
      PARENT_SCOPE)
endfunction()

# A program made of all .cpp files of <folder>, and on Windows of its .rc files; nothing while
# there is no .cpp file.
#   add_sifter_program(<name> <folder> [target...])
function(add_sifter_program name folder)
  file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp")
  if(sources)
    sifter_resources(resources "${folder}")
    add_executable(${name} ${sources} ${resources})
    target_link_libraries(${name} PRIVATE sifter_flags ${ARGN})
  endif()
endfunction()

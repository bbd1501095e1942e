# Copies the files of FROM into TO; the counters file "18" is only copied where there is none.
file(GLOB files ${FROM}/*)
foreach(file IN LISTS files)
  get_filename_component(name ${file} NAME)
  if(NOT (name STREQUAL "18" AND EXISTS ${TO}/18))
    file(COPY ${file} DESTINATION ${TO})
  endif()
endforeach()

# It counts with the numbers that the other builds count with; and Windows calls it with a stack that is less aligned.
set(mingw_processor i686)
set(mingw_flags "-msse2 -mfpmath=sse -mstackrealign")
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64.cmake)

# Cross-building for Windows with MinGW-w64; PELLAM_MINGW_ARCH (i686 or x86_64) is set by the
# width's own toolchain file before it includes this one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${PELLAM_MINGW_ARCH})
set(CMAKE_C_COMPILER ${PELLAM_MINGW_ARCH}-w64-mingw32-gcc)
set(CMAKE_CXX_COMPILER ${PELLAM_MINGW_ARCH}-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER ${PELLAM_MINGW_ARCH}-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${PELLAM_MINGW_ARCH}-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Programs that run without MinGW's runtime DLLs beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")

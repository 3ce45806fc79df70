# What a build for macOS is for: the oldest system that Qt 6.4 runs on, and 64-bit Intel. Has to be
# known before the project is; elsewhere nobody reads it.

set(CMAKE_OSX_DEPLOYMENT_TARGET 10.14 CACHE STRING "The oldest version of macOS to run on")
set(CMAKE_OSX_ARCHITECTURES x86_64 CACHE STRING "The processors to run on")

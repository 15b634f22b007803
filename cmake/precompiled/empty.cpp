// The source that CMake asks of a library which only holds a precompiled header.

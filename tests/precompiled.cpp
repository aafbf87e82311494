// Built only for the headers that CMake precompiles with it.

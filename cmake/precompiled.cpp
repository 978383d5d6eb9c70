// Nothing: it is there so that the precompiled headers belong to a library.

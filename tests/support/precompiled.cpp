// Nothing of its own: the test programs share the headers that are precompiled for this file.

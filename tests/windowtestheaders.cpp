// Holds nothing: its target is the one whose precompiled headers the tests use.

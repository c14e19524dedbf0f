// Only there to have the precompiled headers compiled with it.

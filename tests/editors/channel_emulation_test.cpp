// Filled in by the editor tests.

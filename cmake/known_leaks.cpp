// Memory that libraries under Qt keep to the end, which the sanitizer of leaks shall not report. It
// is compiled into programs with windows when they are built with sanitizers. Names of Qt itself do
// not belong here: most of the program is called from Qt's event loop, and its leaks would be
// hidden.

extern "C" {

// The sanitizer looks for functions of these names.
// NOLINTBEGIN(bugprone-reserved-identifier)
const char* __lsan_default_suppressions() { return "leak:libdbus-1\n"; }
const char* __lsan_default_options() { return "print_suppressions=0"; }
// NOLINTEND(bugprone-reserved-identifier)
}

// Read only by sanitizer builds of the program, which the tests run.
//
// fontconfig (under pango) and libdbus (under SDL2) keep caches until the
// process ends behind pointers they hide, which LeakSanitizer would report
// as leaks; they are not ours to free.
extern "C" const char* __lsan_default_suppressions()
{
    return "leak:libfontconfig.so\nleak:libdbus-1.so\n";
}

// fontconfig shares its caches between pango's threads through its own
// atomics, which ThreadSanitizer cannot see in an uninstrumented library.
extern "C" const char* __tsan_default_suppressions()
{
    return "called_from_lib:libfontconfig.so\nrace:libfontconfig.so\n";
}

// The program's stderr is part of what it says; the count of suppressed
// leaks is not.
extern "C" const char* __lsan_default_options()
{
    return "print_suppressions=0";
}

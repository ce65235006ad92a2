// The stand-alone host's main job. Until the space data layer lands it only
// says so; it never pretends to show a window it cannot build.
#include <cstdio>

int main(int argc, char** argv)
{
    (void)argc;
    (void)argv;
    std::fprintf(stderr,
                 "spacemgm: the space management window is not built yet; "
                 "only the foundation layer and its tests exist so far.\n");
    return 2;
}

/* A host in plain C that knows no pair: it loads a plug-in that does, again and again, and prints what the
 * plug-in tells. */
#include <dlfcn.h>
#include <stdint.h>
#include <stdio.h>

int main(int argc, char **argv)
{
    for (int i = 0; argc == 2 && i < 3; ++i) {
        int32_t (*work)(void) = NULL;
        void *const plugin = dlopen(argv[1], RTLD_NOW | RTLD_LOCAL);
        if (plugin == NULL) {
            fprintf(stderr, "%s\n", dlerror());
            return 1;
        }
        *(void **)&work = dlsym(plugin, "TapPlugin_Work");
        printf("%d ", (int)work());
        printf("%d\n", (int)work());
        dlclose(plugin);
    }
    return argc == 2 ? 0 : 99;
}

// A library of the name of the one that draws, of another version: it makes no plot.
extern "C" __attribute__((visibility("default"))) void *QuorlinMakePlot(int, void *)
{
    return nullptr;
}

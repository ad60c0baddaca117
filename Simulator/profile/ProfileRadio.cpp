#include "Simulator/profile/ProfileRadio.h"

#include "Simulator/profile/NumberTable.h"

void ReadRadio(CJsonReader &reader, SProfile &profile)
{
    if (!reader.Has("radio"))
        return;
    SProfileRadio &radio = profile.radio;
    CJsonReader part(reader.Take("radio"), "radio");
    radio.seed = part.Integer<uint32_t>("seed", 0, UINT32_MAX, radio.seed);
    radio.fluctuationDb = part.Real("fluctuationDb", 0.0, 20.0, radio.fluctuationDb);
    radio.noiseFigureDb = part.Real("noiseFigureDb", 0.0, 40.0, radio.noiseFigureDb);
    ReadNumberTable(part, {"levelDbm", "n", -200.0, 30.0}, radio.levelDbm, radio.bandLevelDbm);
    ReadNumberTable(part, {"pathLossDb", "", 0.0, 120.0}, radio.pathLossDb, radio.routeLossDb);
    if (part.Has("powerDetector")) {
        CJsonReader detector(part.Take("powerDetector"), part.Place("powerDetector"));
        radio.pdSlope = detector.Real("slope", 0.0, 2.0, radio.pdSlope);
        radio.pdOffsetDb = detector.Real("offsetDb", -50.0, 50.0, radio.pdOffsetDb);
        detector.Done();
    }
    part.Done();
}

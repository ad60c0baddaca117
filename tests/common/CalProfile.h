// The largest DUT with the handset's gain modes, as a profile's text: a path loss record has room
// for eight gain modes, and the largest DUT itself has more, which ends every file of it.
//
//   VondSim_SetProfileText(kLargestCalProfile);
#pragma once

constexpr char kLargestCalProfile[] =
    R"({"name": "largest with slots", "base": "largest", "gain": {
        "hpm": {"t1": ["110", "010", "010", "010", "001", "001", "001"],
                "t2": ["110 110 000", "111 111 110", "110 111 011", "110 110 000", "000 011 011",
                       "000 010 000", "000 000 001"]},
        "lpm": {"t1": ["100", "110", "110", "100", "010", "000", "001"],
                "t2": ["100 000 000", "110 110 000", "100 110 000", "100 000 000", "000 010 000",
                       "000 000 000", "000 000 001"]}}})";

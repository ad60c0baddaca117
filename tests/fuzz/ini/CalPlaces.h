// The records of the calibration items, as the rules of the INI fuzz target look at them: bytes in
// memory, and the section that stands for a record in a file.
//
// A route that stands on several bands has one record, which is listed once, with its first band.
//
//   for (const SRecordPlace &place : PlacesOf(item))
//       ... RecordBytes(item, place) == before[place.section]
#pragma once

#include <string>
#include <vector>

#include <QByteArray>

#include "Operations/calibration/MultiRatAptProfileV7.h"
#include "Operations/calibration/MultiRatPathLossV7.h"

struct SRecordPlace
{
    ECalRoute kind;
    SCalPlace place;
    std::string section;  // first section of the record; a file that was saved has it or none
};

// By the target's route table, in the order of the walk.
std::vector<SRecordPlace> PlacesOf(const CMultiRatAptProfileV7 &item);
std::vector<SRecordPlace> PlacesOf(const CMultiRatPathLossV7 &item);

QByteArray RecordBytes(const CMultiRatAptProfileV7 &item, const SRecordPlace &place);
QByteArray RecordBytes(const CMultiRatPathLossV7 &item, const SRecordPlace &place);

// Takes the bytes of a record over, without a change of its validity.
void PutRecord(CMultiRatAptProfileV7 &item, const SRecordPlace &place, const QByteArray &bytes);
void PutRecord(CMultiRatPathLossV7 &item, const SRecordPlace &place, const QByteArray &bytes);

// The bytes of a record that a load may leave as they were, 1 for each: losses that the file has no
// key for, and bytes without a meaning.
QByteArray KeptBytes(const SRecordPlace &place);
// The bytes at which a record's identity and size stand, which no load takes from a file as they
// are.
bool IsHead(const SRecordPlace &place, int at);

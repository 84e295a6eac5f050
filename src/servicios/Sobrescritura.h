#pragma once
// How a save of a party treats a stored row of the same code. A value loaded by a user is
// written only over the version it was loaded from, so that what another running copy saved
// meanwhile is never overwritten in silence; a caller that loaded nothing (a set-up of its own,
// a batch that read the row itself) writes whatever the row holds.
enum class Sobrescritura {
    VersionCargada,   // an update writes only over the value's VERSION (0: none loaded)
    CualquierVersion, // an update writes whatever the row holds; a row gone is written back
};

// What pages and dialogs hear from their host, and what pages tell and ask each other.
#pragma once

namespace pelmar {

/// Messages that the host sends to a page or dialog; both words are ignored, the answer is 0.
constexpr unsigned kSetDefaultsMessage = 0x0C00;   ///< to all: take the defaults
constexpr unsigned kWriteToIniMessage = 0x0C01;    ///< to the lathe page, the default tools: write what only they know
constexpr unsigned kCheckSaveDataMessage = 0x0C02; ///< to NC defaults, defaults file, templates: store the changes,
                                                   ///< asking where that needs a restart

/// What a page tells or asks the other pages of its sheet. The code is the first word of PSM_QUERYSIBLINGS, which goes
/// to every other page that exists until one answers other than 0; a host's own page may listen. A notice carries an
/// index of a list or the address of a double, which holds while the message is processed, and waits for no answer.
///
/// Listen with ON_MESSAGE(PSM_QUERYSIBLINGS, ...), answer 0 to all that is not yours.

// From the 2-axis page.
constexpr unsigned kIslandDepthsChosen = 0x8004;        ///< index of the island depths; after defaults too
constexpr unsigned k2AxisSideClearanceChanged = 0x8017; ///< address of the side clearance

// From the wire EDM page.
/// A choice in the list of the tool length gauge tells its index. Asked with kAsksForToolLengthGauge in place of an
/// index, the page answers the index it holds.
constexpr unsigned kToolLengthGauge = 0x8002;
constexpr long kAsksForToolLengthGauge = 2;
constexpr unsigned kEdmSideClearanceChanged = 0x801D;  ///< address of the side clearance
constexpr unsigned kEdmSideFinishStepChanged = 0x801F; ///< address of the side finish step

// From Z roughing and from flat surfaces.
constexpr unsigned kCutModeChosen = 0x800E; ///< index of the cut mode, of the material or of pockets alike

// From flat surfaces.
constexpr unsigned kFlatSideStepChanged = 0x801B;    ///< address of the side step
constexpr unsigned kFlatSideStepTypeChosen = 0x801C; ///< index of its type, where it is another than before

// From Z roughing.
constexpr unsigned kSideRoughStepChanged = 0x8025;         ///< address of the side rough step
constexpr unsigned kSideRoughStepTypeChosen = 0x8026;      ///< index of its type, where it is another than before
constexpr unsigned kDepthRoughStepChanged = 0x8027;        ///< address of the depth rough step
constexpr unsigned kDepthRoughStepTypeChosen = 0x8028;     ///< index of its type, where it is another than before
constexpr unsigned kRoughSideClearanceChanged = 0x8029;    ///< address of the side clearance
constexpr unsigned kRoughSideClearanceTypeChosen = 0x802A; ///< index of its type, where it is another than before

// From round milling.
/// Index of the type of the side clearance. No choice of the user's is told: the list's own choices reach no handler.
constexpr unsigned kRoundSideClearanceTypeChosen = 0x8018;

// Asked of the 5-axis page.
constexpr unsigned kAsksForNormals = 0x801A; ///< whether surface normals are put out; the argument is ignored
constexpr long kNormalsOff = 1;              ///< its answers
constexpr long kNormalsOn = 2;

} // namespace pelmar

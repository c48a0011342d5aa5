// How an operation is described to the suites of records and pages. A description states what its record holds and its
// page shows on its own: it takes nothing from the tables of the library.
#pragma once

#include "pages/record_checks.h"

/// A key and its field, which is one of the two.
template <class Record> struct KeptField {
    KeptField(const char* itsKey, int Record::*field) : key(itsKey), whole(field) {}
    KeptField(const char* itsKey, double Record::*field) : key(itsKey), real(field) {}

    const char* key;
    int Record::*whole = nullptr;
    double Record::*real = nullptr;
};

/// An edit that stands for all, what is typed into it and what becomes of that.
template <class Record> struct Sample {
    int id;
    const char* key;
    double Record::*field;
    const wchar_t* text;
    double value;
    const wchar_t* shown;
    const char* saved;
};

/// A length that stands for all: its edit, and its type where it has one.
template <class Record> struct SampleLength {
    int id;
    const char* key;
    double Record::*field;
    const char* typeKey = nullptr;
    int Record::*type = nullptr;
};

/// A defaults file, and where what comes of it differs from a fresh record.
struct DefaultsCase {
    std::string lines;                                          ///< of the record's section
    std::vector<std::pair<std::string, std::string>> kept = {}; ///< what the record saves after OK
    std::vector<std::pair<int, std::wstring>> shown = {};       ///< texts of edits
};

/// The start of a description. What has no default here, each one tells:
///
///   static constexpr auto Live                  the function that gives the live record
///   RecordOperations<Record> operations         with the bytes of a fresh record
///   Fields fields                               every key but the units
///   Lengths lengths                             every real that is scaled, also where no key has it
///   std::string changed                         a file that differs from a fresh one in every key and is kept as it is
///   int templateId, const wchar_t title[]       of the page
///   int other                                   a control that takes the focus from any edit
///   Sample<Record> sample
///   Lists lists                                 that a handler stores
///   std::vector<Bound> bounds
///   std::vector<Topic> topics                   that of the page itself included
///   DefaultsCase defaults                       where the page shows its defaults
///   SampleLength<Record> length                 where units change what the page shows
template <class RecordClass, class PageClass> struct OperationOf {
    using Record = RecordClass;
    using Page = PageClass;
    using Operations = RecordOperations<Record>;
    using Fields = std::vector<KeptField<Record>>;
    using Lengths = std::vector<ScaledLength<Record>>;
    using Unscaled = std::vector<double Record::*>;
    using Reals = std::vector<RealControl<Record>>;
    using Wholes = std::vector<WholeControl<Record>>;
    using Lists = std::vector<ListControl<Record>>;
    using Boxes = std::vector<BoxControl<Record>>;
    using Told = std::vector<ToldOf>;

    // ---- the record ----

    static inline const FileRules rules;
    static inline const Unscaled unscaled; ///< every real with a key that is no length

    /// What stands around a test.
    struct Surroundings {};

    // ---- the page ----

    /// What the page needs so that all its lists and boxes can be set.
    static void Prepare(Page&) {}
    /// Fills the page in the way that shows the most of it.
    static void ShowMost(Page& page) { page.GetData(0); }
    /// A record with which all edits can be typed into.
    static Record AllEditsEnabled() { return {}; }

    /// What a new page shows before it is handed anything; else a fresh record.
    static constexpr bool startsWithLiveRecord = true;

    static inline const Reals reals;                 ///< taken when they are left
    static inline const Reals otherReals;            ///< taken with the page
    static inline const Wholes wholes;               ///< edits of whole numbers
    static inline const std::vector<int> plainEdits; ///< that do not know "="
    static inline const std::vector<int> markingEdits;
    static constexpr Marking listMarking = Marking::Modified;
    /// What becomes of a field whose list holds no such value and has nothing selected then.
    static int LeftWithoutSelection(int) { return 99; }
    /// Keys that a choice from a list which is not there changes.
    static inline const std::vector<std::pair<std::string, std::string>> whereMissing;
    static inline const Boxes boxes;
    static inline const std::vector<Refusal> refusals;
    static inline const std::vector<Topic> absentTopics; ///< of ids that the template does not hold
    static inline const Told realNotices;                ///< told when the edit is left
    static inline const Told choiceNotices;              ///< told of every choice
    static inline const Told typeNotices;                ///< told of another choice than before
    static inline const std::vector<SiblingSpy::Notice> defaultsNotices;
};

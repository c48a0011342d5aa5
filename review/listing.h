// The settings as a list to look through: what is held, what it is compared with, what was found, and what the user
// changes in it before anything is final.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "review/changes.h"
#include "review/findings.h"
#include "review/setting.h"
#include "review/settings_text.h"
#include "review/values.h"
#include "review/words.h"

namespace pelmar::review {

enum class Column { Operation, Option, Value, Compared, Finding };
inline constexpr std::size_t kColumns = 5;

/// Which rows are listed.
enum class Shown { All, Different, Faulty };
inline constexpr int kShownKinds = 3;

/// The order of the list; that of the files without a column.
struct Order {
    std::optional<Column> by{};
    bool isDescending = false;

    friend bool operator==(const Order&, const Order&) = default;
};

/// Where a setting is edited. Nowhere without a template; on the page as a whole without a control.
struct Place {
    int templateId = 0;
    int controlId = 0;
};

/// A setting, or something that was found in the file and is of no setting.
struct ListingRow {
    const Setting* setting = nullptr;
    std::vector<Finding> findings{};
    std::string note{};                        ///< in place of findings: why there are none
    std::array<std::string, kColumns> texts{}; ///< as shown
    std::string searched{};                    ///< in small letters, all that the search looks through
    bool isDifferent = false;
    bool isFaulty = false;
    bool isEdited = false;

    /// Whether the user may give it another value.
    bool IsEditable() const { return setting && setting->record && !setting->IsUnits(); }
    Place WhereEdited() const;
};

/// What became of values that were to be taken over.
struct Taken {
    std::size_t count = 0;
    std::vector<std::string> refusals{}; ///< for people, each with the option that it is about
};

/// Rows have numbers: settings keep theirs as long as the listing lives.
class Listing {
public:
    /// What is held, and what it is compared with at first.
    Listing(Values held, Values compared, const Words& words);

    /// The file whose findings are told; null where there is none. `trouble`: why it could not be read.
    void SetFile(const SettingsText* file, const std::string& trouble);
    void CompareWith(Values compared);

    void Search(std::string_view text);
    void Show(Shown shown);
    void SortBy(Order order);
    Shown WhatIsShown() const { return m_what; }
    Order InOrder() const { return m_order; }

    /// The numbers of the rows that are listed, in their order.
    std::span<const std::size_t> Listed() const { return m_listed; }
    const ListingRow& Row(std::size_t number) const { return m_rows[number]; }
    std::size_t CountOf(bool ListingRow::*what) const;

    /// What an edit of the row shows at first: a value without its unit.
    std::string EditedText(std::size_t number) const;
    /// Gives the row a value as the user enters it. Why it is refused; empty where it is not.
    std::string Edit(std::size_t number, std::string_view text);
    /// Gives rows the values that they are compared with, and lengths their meaning with it. Rows that cannot be edited
    /// stay as they are.
    Taken Take(std::span<const std::size_t> numbers);
    /// Gives settings the values that they have in others: of a listing before, that the user has edited.
    void Keep(const Values& values, std::span<const Setting* const> edited);
    /// Rows as lines of text, columns parted by tabs.
    std::string Copied(std::span<const std::size_t> numbers) const;

    const Values& Held() const { return m_values; }
    /// The settings that are to have another value than at the start.
    std::vector<const Setting*> Edited() const;

private:
    bool IsEdited(const Setting& setting) const;
    bool IsDifferent(const Setting& setting) const;
    std::string ValueWithUnit(const Setting& setting, const Values& values) const;
    std::string FindingText(ListingRow& row) const;
    void TakeOne(const Setting& setting, Taken& taken);
    void Refresh(ListingRow& row) const;
    void RefreshAll();
    void Arrange();
    bool IsListed(const ListingRow& row) const;
    bool IsBefore(std::size_t one, std::size_t other) const;
    bool IsLess(std::size_t one, std::size_t other) const;

    Words m_words;
    Values m_atStart;
    Values m_values;
    Values m_compared;
    std::vector<ListingRow> m_rows;
    std::size_t m_settings = 0; ///< how many rows are of settings; they come first
    std::vector<std::size_t> m_listed;
    std::vector<std::string> m_search; ///< words, in small letters
    Shown m_what = Shown::All;
    Order m_order;
};

} // namespace pelmar::review

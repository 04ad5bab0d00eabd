// Names of variables in a text replaced by something else, as whole words and regardless of
// letter case: by cell references in equations, by values in every cell of a sheet.
#pragma once

#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core_api/text/text_index.h"
#include "core_api/text/vor_string_array.h"
#include "spread/control/formula/cell_names.h"

/// Replaces one name after another (the shorter list counts), so that what was put in for one
/// name can be a later name. A name counts where no letter (ASCII), digit or underscore touches
/// it. With `quoteTexts` values that are no numbers are put in double quotes. True when anything
/// was replaced.
bool replaceVariables(Vor_String& text, const Vor_StringArray& names, const Vor_StringArray& values,
                      bool quoteTexts);

/// The declared names of a sheet with their cell references, made once and asked for every
/// equation. Gives exactly what replaceVariables gives: in one pass over the text as long as all
/// names are plain words of less than 256 letters and no two are equal; otherwise name by name,
/// passing over those that cannot be in the text.
class VariableReferences final : public formula::CellNames {
  public:
    /// What becomes of a name that was there before: its own reference, or that of the first.
    enum class Namesakes { apart, asFirst };

    VariableReferences() = default;
    VariableReferences(Vor_StringArray names, Vor_StringArray references,
                       Namesakes namesakes = Namesakes::apart);
    // The index borrows the names.
    VariableReferences(const VariableReferences&) = delete;
    VariableReferences& operator=(const VariableReferences&) = delete;
    VariableReferences(VariableReferences&&) = default;
    VariableReferences& operator=(VariableReferences&&) = default;

    int count() const { return m_names.length(); }
    /// Index of the first variable of that name, letter case aside, or -1.
    int find(std::string_view name) const { return m_index.find(name); }
    /// `text` with references for names; lies in `buffer`.
    std::string_view translate(std::string_view text, std::string& buffer) const;
    /// Every word that translate() replaces becomes the address of a cell: formulas can be parsed
    /// with the names in them.
    bool areCells() const { return m_areCells; }
    const control::CellAddress* cellOf(std::string_view word) const override;

  private:
    void noteShape(const Vor_String& name);
    bool isName(std::string_view text) const;
    void noteCells();
    std::string_view replaceOneByOne(std::string_view text, std::string& buffer) const;
    bool mayBeName(std::string_view word) const {
        return mayStartWith(word[0]) && word.size() < m_lengths.size() && m_lengths[word.size()];
    }
    std::string_view translateWord(std::string_view word) const;

    Vor_StringArray m_names;
    Vor_StringArray m_references;
    std::vector<control::CellAddress> m_cells;  // what each name becomes in the end
    TextIndex m_index;
    bool m_onePass = true;
    bool m_areCells = false;
    size_t m_longestReference = 0;
    bool m_chains = false;  // a reference that is put in may be a name
    // Most words are functions and numbers: what their first letter or length tells apart from
    // every name needs no look into the index.
    std::bitset<256> m_lengths;
    std::vector<std::uint64_t> m_words;  // without m_onePass: of each name, as wordSet gives them
};

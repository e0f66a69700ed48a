// A dialog by plain Windows calls, as the measure of what opening one must cost.
#pragma once

#include "afx/afx.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

/// Opens a template of the module's own. It learns from a dialog of the same template what was done to its controls,
/// and from then on does the same: texts, items with their data, selections, limits, checks, fonts, places, states.
class CPlainDialog
{
public:
    explicit CPlainDialog(UINT templateId);

    /// Remembers in what `dialog` differs from a dialog of the template that nothing is done to.
    void Learn(HWND dialog);

    /// In what `dialog` is not as the dialog that was learned from; empty when it is in all that can be learned.
    std::string DifferencesOf(HWND dialog) const;

    /// Runs it as a modal dialog until it is cancelled.
    void DoModal(HWND owner) const;

private:
    struct SState
    {
        bool operator==(const SState&) const = default;
        std::string Print() const;

        int id = 0;
        bool isCombo = false;
        std::string text;
        std::vector<std::pair<std::string, LRESULT>> items;
        LRESULT selection = 0;
        LRESULT check = 0;
        LRESULT limit = 0;
        LRESULT font = 0;
        LONG x = 0;
        LONG y = 0;
        LONG width = 0;
        LONG height = 0;
        bool isEnabled = false;
        bool isVisible = false;
    };

    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);
    static SState StateOf(HWND window);
    static std::vector<SState> StatesOf(HWND dialog);
    static void Change(HWND window, const SState& from, const SState& to);
    static void FillCombo(HWND combo, const SState& to);
    void Make(HWND dialog) const;

    LPCDLGTEMPLATE m_template;
    std::vector<SState> m_before;          ///< the dialog itself, then its controls in their order
    std::map<int, LRESULT> m_fieldHeights; // to be set, of drawn combos by their ids
    std::vector<SState> m_after;
};

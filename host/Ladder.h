// Draws an instruction sequence of the wizard library as a ladder in plain text:
//
//     |--| R10A |--( DF )--+--[ F0    MV    H113    DT100 ]--|
//     |                    +--[ F168  SPD1  DT100   K0    ]--|
//
// Contacts stand from left to right, a slash marks one that is closed while its device is off; instructions that share
// contacts stand below each other. Every ladder is as wide as its widest rung.
#pragma once

#include "host/ResultLists.h"

#include <string>
#include <vector>

class CLadder
{
public:
    /// Appends the next record of the sequence. A contact that follows an output begins a new rung.
    void Add(const SInstructionEntry& record);

    /// The drawing, every line ended by "\n"; empty when there is nothing to draw.
    std::string Text() const;

    static CLadder Of(const std::vector<SInstructionEntry>& sequence);

private:
    struct SOutput
    {
        std::vector<std::string> words; // instruction, mnemonic and operands; a coil has one word
        bool isCoil;
    };

    struct SRung
    {
        std::vector<std::string> contacts;
        std::vector<SOutput> outputs;
    };

    SRung& RungForContact();
    SRung& RungForOutput();
    std::vector<size_t> ColumnWidths() const;

    std::vector<SRung> m_rungs;
};

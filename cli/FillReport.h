// What came of the jobs, piece by piece.
#pragma once

#include "cli/Filler.h"
#include "cli/Format.h"

#include <memory>
#include <string>

class CFillReport
{
public:
    virtual ~CFillReport() = default;

    /// Before the first job, for each job, and behind the last one.
    virtual std::string Begin() { return {}; }
    virtual std::string Entry(const SFilled& filled) = 0;
    virtual std::string End() { return {}; }
};

struct SReportForm
{
    EFormat format = EFormat::Text;
    bool many = false;    ///< of a file: each job says which line it stands in
    bool records = false; ///< text: contacts, operands and instruction records, too
};

std::unique_ptr<CFillReport> MakeFillReport(const SReportForm& form);

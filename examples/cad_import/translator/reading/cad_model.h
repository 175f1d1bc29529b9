#pragma once

#include "reading/step_records.h"

#include <IGESControl_Reader.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <TDocStd_Document.hxx>

#include <memory>
#include <string>

/// A CAD file as an XDE document, with the reader that still knows the file's own entities: that of its format, the
/// other is null.
struct CadModel
{
    std::string path;
    Handle(TDocStd_Document) document;
    std::unique_ptr<STEPCAFControl_Reader> step;
    std::unique_ptr<IGESControl_Reader> iges;
    std::unique_ptr<StepRecords> records; // of a STEP file, otherwise null
    bool namesUnit = true;                // of lengths
    /// For the user: what could not be read, so that the model may be incomplete. Otherwise empty.
    std::string damage;
    /// For the user: what else should be known of the model. Otherwise empty.
    std::string remark;
};

#pragma once

#include <STEPCAFControl_Reader.hxx>
#include <TDocStd_Document.hxx>

#include <memory>
#include <string>

class HostChannel;
class ImportProgress;

/// What is read of a file beside its shapes, names, colours, materials and validation properties.
struct StepReadingOptions
{
    bool layers = true;
    bool pmi = true;
};

/// A STEP file as an XDE document, with the reader that still knows the file's own entities.
struct StepModel
{
    std::string path;
    Handle(TDocStd_Document) document;
    std::unique_ptr<STEPCAFControl_Reader> reader;
    /// For the user, when parts of the file could not be read and the model may be incomplete; otherwise empty.
    std::string warning;
};

/// Reads and transfers the file at `path` (UTF-8). Throws TranslationError with a message for the user.
StepModel readStep(const std::string& path, const StepReadingOptions& options, HostChannel& channel,
                   ImportProgress& progress);

// Writes the assembly on which the example is shown, in the form that the extension names:
// make_bench_vise <file.step or file.igs>

#include "iges_form.h"
#include "vise_document.h"
#include "vise_threads.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <Standard_Failure.hxx>
#include <StepData_StepModel.hxx>
#include <TCollection_HAsciiString.hxx>
#include <XSControl_WorkSession.hxx>

#include <exception>
#include <filesystem>
#include <iostream>
#include <string>

namespace
{

Handle(TCollection_HAsciiString) text(const char* value)
{
    return new TCollection_HAsciiString(value);
}

// Fixed, so that the same model gives the same header. The writer puts the styles in the order of addresses in memory:
// their order, and with it the numbers of the entities behind them, differs from run to run.
void setHeader(const Handle(StepData_StepModel) & model)
{
    APIHeaderSection_MakeHeader header(model);
    header.SetName(text("bench_vise.step"));
    header.SetTimeStamp(text("2024-01-01T00:00:00"));
    header.SetAuthorValue(1, text("make_bench_vise"));
    header.SetOrganizationValue(1, text("vrx_api"));
    header.SetOriginatingSystem(text("make_bench_vise"));
    header.SetDescriptionValue(1, text("Bench vise, an assembly to try an import on"));
}

bool writeStep(const Handle(TDocStd_Document) & document, const char* path)
{
    STEPCAFControl_Writer writer;
    Interface_Static::SetCVal("write.step.schema", "AP214IS");
    Interface_Static::SetIVal("write.surfacecurve.mode", 0); // no curves on surfaces: half the size
    writer.SetSHUOMode(true);
    if (!writer.Transfer(document))
    {
        return false;
    }
    vise::addThreads(writer, document);
    setHeader(Handle(StepData_StepModel)::DownCast(writer.ChangeWriter().WS()->Model()));
    return writer.Write(path) == IFSelect_RetDone;
}

bool write(const Handle(TDocStd_Document) & document, const char* path)
{
    const std::string extension = std::filesystem::path(path).extension().string();
    return extension == ".igs" || extension == ".iges" ? writeIges(document, path) : writeStep(document, path);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        std::cerr << "usage: make_bench_vise <file.step or file.igs>\n";
        return 2;
    }
    Message::DefaultMessenger()->RemovePrinters(STANDARD_TYPE(Message_Printer));
    try
    {
        if (!write(vise::document(), argv[1]))
        {
            std::cerr << "make_bench_vise: cannot write " << argv[1] << '\n';
            return 1;
        }
    }
    catch (const Standard_Failure& failure)
    {
        std::cerr << "make_bench_vise: " << failure.GetMessageString() << '\n';
        return 1;
    }
    catch (const std::exception& failure)
    {
        std::cerr << "make_bench_vise: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}

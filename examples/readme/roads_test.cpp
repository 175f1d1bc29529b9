// Runs the code of the pages in docs/reference/roads. Started with an argument, it is the translator of the import.
#include <vrx_api/vrx_api.h>

#include <bridge/bridge.h>

#include <cstdio>
#include <cstdlib>

void askForImport(mp::wostream& toTranslator);
void answer(mp::wistream& fromHost, mp::wostream& toHost);
void serveImports();
std::size_t countPlacements(const std::vector<std::string>& translator);
std::shared_ptr<vrx::ExcEntity> fourthFace(std::uint64_t bodyId);
std::shared_ptr<vrx::ExcBlockVisualization> makeSquare(std::uint64_t blockId);
std::size_t countTriangles(const std::shared_ptr<vrx::ExcVisuNode>& root);
std::vector<std::string> dimensionTexts(const vrx::ExcPMIAnnotationView& view);
int countThreads(const vrx::ExcMfgData& features);
int countScrewHoles(const vrx::ExcMfgData& features, double diameter);

// In docs/mechanical_model.md
std::shared_ptr<vrx::ExcPMIAnnotationView> makeFrontView(const std::shared_ptr<vrx::ExcEntity>& face);
std::shared_ptr<vrx::ExcMfgData> makeFeatures(const std::shared_ptr<vrx::ExcEntity>& face);

static void require(bool condition, const char* what)
{
    if (!condition)
    {
        std::fprintf(stderr, "The road of %s does not do what its page tells\n", what);
        std::exit(EXIT_FAILURE);
    }
}

static void askAndAnswer()
{
    mp::wstringstream toTranslator;
    mp::wstringstream toHost;
    askForImport(toTranslator);
    require(toTranslator.str().find(WIDE("\"visu_pmi_mode\": \"all\"")) != mp::wstring::npos, "a command");
    answer(toTranslator, toHost);
    vrx::Result result;
    result.readObject(toHost);
    require(result.code() == vrx::Result::ECode::Ok && result.isFinished(), "a command");
}

static void sendScene()
{
    mp::wstringstream channel;
    vrx::ExchangeObjectWrapper envelope;
    envelope.set(makeSquare(5));
    envelope.writeObject(channel);
    envelope.readObject(channel);
    const auto shown = std::dynamic_pointer_cast<vrx::ExcBlockVisualization>(envelope.get());
    require(shown != nullptr && shown->blockId() == 5, "a scene");
    require(countTriangles(shown->visualizationData()->sceneRootNodes().at(0)) == 2, "a scene");
}

int main(int count, char** arguments)
{
    if (count > 1)
    {
        serveImports();
        return EXIT_SUCCESS;
    }
    askAndAnswer();
    require(countPlacements({arguments[0], "translator"}) == 2, "an import");
    sendScene();

    const auto face = fourthFace(7);
    require(face->fsp()->bodyId() == 7 && face->fsp()->subentId().index() == 3, "a body");
    const auto texts = dimensionTexts(*makeFrontView(face));
    require(texts == std::vector<std::string>{"4X12 from -0.05 to 0.1"}, "PMI");
    const auto features = makeFeatures(face);
    require(countThreads(*features) == 6 && countScrewHoles(*features, 6.0) == 1, "features");
    require(countScrewHoles(*features, 7.0) == 0, "features");
    return EXIT_SUCCESS;
}

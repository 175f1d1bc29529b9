#include "bench/models.h"
#include "bench/noise.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

namespace bench
{

namespace
{

using vrx::ExcPMIDimension;
using vrx::ExcPMIGDT;
using vrx::ExcPMINote;

vrx::ExcVector2d somewhere(Noise& noise)
{
    return vrx::ExcVector2d(noise.next() * 400.0, noise.below(800) * 0.5);
}

std::shared_ptr<vrx::ExcEntity> makeFace(Noise& noise)
{
    constexpr std::uint32_t kFaces = 5000;
    const vrx::ExcSubentId face(vrx::ExcSubentId::EType::Face, noise.below(kFaces));
    auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Fsp);
    entity->setFsp(std::make_shared<vrx::ExcFullSubentPath>(1, face));
    return entity;
}

// Where an annotation stands, what it is about, and the line that leads there.
void place(vrx::ExcPMIAnnotation& annotation, Noise& noise)
{
    annotation.setId(noise.guid());
    annotation.setPosition(somewhere(noise));
    annotation.setZDepth(noise.below(10));
    annotation.addLinkedElement(makeFace(noise));
    annotation.addLinkedElement(makeFace(noise));
    const auto leader = std::make_shared<vrx::ExcPMILeader>();
    leader->setPoints({somewhere(noise), somewhere(noise), somewhere(noise)});
    annotation.addLeader(leader);
}

std::shared_ptr<ExcPMIDimension> makeDimension(std::size_t number, Noise& noise)
{
    auto dimension = std::make_shared<ExcPMIDimension>();
    place(*dimension, noise);
    dimension->setMainType(ExcPMIDimension::EMainType::Tolerance);
    dimension->setSubType(number % 2 == 0 ? ExcPMIDimension::ESubType::Diameter : ExcPMIDimension::ESubType::Distance);
    dimension->setCoord({noise.next(), noise.next(), noise.next()});
    dimension->setValue(noise.below(4000) * 0.25);
    dimension->setUnit(ExcPMIDimension::EDimUnit::Mm);
    dimension->setValuePrecision(2.0);
    dimension->setNumericalToleranceLower(-0.01 * noise.below(50));
    dimension->setNumericalToleranceUpper(0.01 * noise.below(50));
    dimension->setBefore(number % 3 == 0 ? WIDE("4X") : WIDE(""));
    dimension->setLineStart(somewhere(noise));
    dimension->setLineEnd(somewhere(noise));
    dimension->setArrowSymbolStart(ExcPMIDimension::EArrowSymbol::FilledArrow);
    dimension->setArrowSymbolEnd(ExcPMIDimension::EArrowSymbol::FilledArrow);
    return dimension;
}

std::shared_ptr<ExcPMIGDT> makeTolerance(Noise& noise)
{
    constexpr const vrx::wchar* kLabels[] = {WIDE("A"), WIDE("B"), WIDE("C")};
    const auto frame = std::make_shared<ExcPMIGDT::Frame>();
    for (const vrx::wchar* const label : kLabels)
    {
        ExcPMIGDT::ModifiedDatum datum;
        datum.setDatumId(noise.guid());
        datum.setModifier(ExcPMIGDT::EToleranceModifier::MaterialConditionMaximum);
        ExcPMIGDT::DatumRef reference;
        reference.setLabel(label);
        reference.addModifiedDatum(datum);
        frame->addDatumRef(reference);
    }
    auto tolerance = std::make_shared<ExcPMIGDT>();
    place(*tolerance, noise);
    tolerance->setToleranceType(ExcPMIGDT::EToleranceType::LocationTruePosition);
    tolerance->setToleranceValueType(ExcPMIGDT::EToleranceValueType::Diameter);
    tolerance->setToleranceValue(0.05 * noise.below(20));
    tolerance->setReferenceFrame(frame);
    return tolerance;
}

std::shared_ptr<vrx::ExcPMIDatum> makeDatum(std::size_t number, Noise& noise)
{
    auto datum = std::make_shared<vrx::ExcPMIDatum>();
    place(*datum, noise);
    datum->setLabel(numbered("A", number));
    datum->addTargetId(noise.guid());
    return datum;
}

std::shared_ptr<ExcPMINote> makeNote(std::size_t number, Noise& noise)
{
    auto note = std::make_shared<ExcPMINote>();
    place(*note, noise);
    for (const char* const line : {"Break sharp edges ", "Unless otherwise specified, see sheet "})
    {
        const auto text = std::make_shared<ExcPMINote::Text>();
        text->setLabel(numbered(line, number));
        text->setFontName(WIDE("Sans"));
        text->setHeight(3.5);
        note->addText(text);
    }
    return note;
}

std::shared_ptr<vrx::ExcPMIAnnotationView> makeView(Noise& noise)
{
    constexpr std::size_t kDimensions = 150;
    constexpr std::size_t kTolerances = 100;
    constexpr std::size_t kDatums = 20;
    constexpr std::size_t kNotes = 50;
    auto view = std::make_shared<vrx::ExcPMIAnnotationView>();
    view->setVectorU({1.0, 0.0, 0.0});
    view->setVectorV({0.0, 0.0, 1.0});
    for (std::size_t i = 0; i < kDimensions; ++i)
    {
        view->addDimension(makeDimension(i, noise));
    }
    for (std::size_t i = 0; i < kTolerances; ++i)
    {
        view->addGdt(makeTolerance(noise));
    }
    for (std::size_t i = 0; i < kDatums; ++i)
    {
        view->addDatum(makeDatum(i, noise));
    }
    for (std::size_t i = 0; i < kNotes; ++i)
    {
        view->addNote(makeNote(i, noise));
    }
    return view;
}

} // namespace

std::shared_ptr<vrx::IExchangeObject> makePmi()
{
    constexpr std::size_t kViews = 60;
    Noise noise;
    const auto annotations = std::make_shared<vrx::ExcPMIAnnotationSet>();
    annotations->setBlockId(1);
    for (std::size_t i = 0; i < kViews; ++i)
    {
        annotations->addView(makeView(noise));
    }
    const auto pmi = std::make_shared<vrx::ExcPMIData>();
    pmi->addAnnotationSet(annotations);
    const auto data = std::make_shared<vrx::ExcBlockMechanicalData>();
    data->setBlockId(1);
    data->setPMIData(pmi);
    return data;
}

void makePmiReadable(vrx::JsonValue& tree)
{
    for (vrx::JsonValue& set : tree[WIDE("pmi_data")].GetArray())
    {
        set.FindMember(WIDE("views"))->name.SetString(WIDE("annotation_views"));
    }
}

} // namespace bench

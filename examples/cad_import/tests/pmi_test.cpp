#include "bridge/frames.h"
#include "common/pmi_conventions.h"
#include "host/pmi/pmi_json.h"
#include "host/pmi/pmi_notation.h"
#include "host/pmi/pmi_table.h"
#include "kernel_standin/kernel_standin.h"
#include "mechanical_block.h"
#include "mp/narrow.h"
#include "vrx_api/json/json_value.h"
#include "vrx_api/vrx_api_exchange_object.h"

#include <gmock/gmock.h>
#include <rapidjson/document.h>

#include <functional>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using vrx::ExcPMIDimension;
using vrx::ExcPMIGDT;
using EModifier = ExcPMIGDT::EToleranceModifier;
using ESubType = ExcPMIDimension::ESubType;
using EMainType = ExcPMIDimension::EMainType;
using EType = vrx::ExcSubentId::EType;

struct DimensionRow
{
    const char* text;
    std::function<void(ExcPMIDimension&)> make;
};

void deviate(ExcPMIDimension& dimension, double lower, double upper)
{
    dimension.setMainType(EMainType::Tolerance);
    dimension.setNumericalToleranceLower(lower);
    dimension.setNumericalToleranceUpper(upper);
}

TEST(PmiNotation, OfDimensions)
{
    const DimensionRow rows[] = {
        {"4X ⌀ 12.5 ±0.05",
         [](auto& d) {
             d.setBefore(WIDE("4X"));
             d.setSubType(ESubType::Diameter);
             d.setValue(12.5);
             deviate(d, -0.05, 0.05);
         }},
        {"R 10 +0.2/0",
         [](auto& d) {
             d.setSubType(ESubType::RadiusCylinder);
             d.setValue(10);
             deviate(d, 0, 0.2);
         }},
        {"25 -0.1/-0.3",
         [](auto& d) {
             d.setSubType(ESubType::Length);
             d.setValue(25);
             deviate(d, -0.3, -0.1);
         }},
        {"⌀ 12 H7",
         [](auto& d) {
             d.setSubType(ESubType::DiameterCylinder);
             d.setValue(12);
             deviate(d, 0, 0);
             d.setAlphanumericalToleranceUpper(WIDE("H7"));
         }},
        {"S⌀ 20 H8/g7",
         [](auto& d) {
             d.setSubType(ESubType::Diameter);
             d.setPrefix(WIDE("S⌀"));
             d.setValue(20);
             d.setAlphanumericalToleranceUpper(WIDE("H8"));
             d.setAlphanumericalToleranceLower(WIDE("g7"));
         }},
        {"2X [⌀ 20] THRU",
         [](auto& d) {
             d.setBefore(WIDE("2X"));
             d.setSubType(ESubType::Diameter);
             d.setMainType(EMainType::Basic);
             d.setValue(20);
             d.setAfter(WIDE("THRU"));
         }},
        {"(0.5)",
         [](auto& d) {
             d.setMainType(EMainType::Reference);
             d.setValue(0.5);
         }},
        {"30° ±0.5°",
         [](auto& d) {
             d.setSubType(ESubType::Angle);
             d.setUnit(ExcPMIDimension::EDimUnit::Degree);
             d.setValue(30);
             deviate(d, -0.5, 0.5);
         }},
        {"12.50 +0.100/-0.050", // places that are stated
         [](auto& d) {
             d.setValue(12.5);
             d.setValuePrecision(2);
             d.setTolerancePrecisionValue(3);
             deviate(d, -0.05, 0.1);
         }},
        {"0.3 ±0.000025", // what only arithmetic has made
         [](auto& d) {
             d.setValue(0.1 + 0.2);
             deviate(d, -0.000025, 0.000025);
         }},
        {"⌀ 12.4 - 12.6", // limits
         [](auto& d) {
             d.setSubType(ESubType::Diameter);
             d.setValue(12.5);
             d.setHasAlphanumericalValue(true);
             d.setFakeAlphanumericalValue(WIDE("12.4 - 12.6"));
             deviate(d, -0.1, 0.1);
         }},
        {"0", [](auto& d) { d.setValue(-1e-17); }},
    };
    for (const DimensionRow& row : rows)
    {
        ExcPMIDimension dimension;
        row.make(dimension);
        EXPECT_EQ(mp::toNarrow(pmi_notation::text(dimension)), row.text);
    }
}

ExcPMIGDT::DatumRef datumRef(const mp::wstring& label, const std::vector<std::pair<mp::wstring, EModifier>>& datums)
{
    ExcPMIGDT::DatumRef reference;
    reference.setLabel(label);
    for (const auto& [id, modifier] : datums)
    {
        ExcPMIGDT::ModifiedDatum datum;
        datum.setDatumId(id);
        datum.setModifier(modifier);
        reference.addModifiedDatum(datum);
    }
    return reference;
}

std::shared_ptr<ExcPMIGDT::Frame> frame(const std::vector<ExcPMIGDT::DatumRef>& references)
{
    auto frame = std::make_shared<ExcPMIGDT::Frame>();
    for (const ExcPMIGDT::DatumRef& reference : references)
    {
        frame->addDatumRef(reference);
    }
    return frame;
}

template <class Annotation>
std::shared_ptr<Annotation> onFace(std::uint64_t body, std::uint64_t face)
{
    const auto entity = std::make_shared<vrx::ExcEntity>();
    entity->setType(vrx::ExcEntity::EType::Fsp);
    entity->setFsp(std::make_shared<vrx::ExcFullSubentPath>(body, vrx::ExcSubentId(EType::Face, face)));
    auto annotation = std::make_shared<Annotation>();
    annotation->addLinkedElement(entity);
    annotation->setPosition({3, 4});
    return annotation;
}

const mp::wstring kDatumA = WIDE("5/0/datum/0");
const mp::wstring kDatumB = WIDE("5/0/datum/1");

// The PMI of block 5: a dimension, a composite frame, and datums A, which rests on a target, and B. A saved view shows
// the frame.
std::shared_ptr<pmi_conventions::SentAnnotationSet> annotations()
{
    const auto view = std::make_shared<vrx::ExcPMIAnnotationView>();
    view->setVectorU({1, 0, 0});
    view->setVectorV({0, 1, 0});

    const auto datum = onFace<vrx::ExcPMIDatum>(77, 1);
    datum->setLabel(WIDE("A"));
    datum->addTargetId(WIDE("5/0/datum_targets/0"));
    view->addDatum(datum);
    const auto other = std::make_shared<vrx::ExcPMIDatum>();
    other->setLabel(WIDE("B"));
    view->addDatum(other);
    const auto target = std::make_shared<vrx::ExcPMIDatumTarget>();
    target->setLabel(WIDE("A1"));
    target->setTargetType(vrx::ExcPMIDatumTarget::EType::AreaCircular);
    target->setHasDiameter(true);
    target->setUpperText(WIDE("20"));
    view->addDatumTarget(target);

    const auto gdt = onFace<ExcPMIGDT>(77, 3);
    gdt->setName(WIDE("inch"));
    gdt->setToleranceType(ExcPMIGDT::EToleranceType::LocationTruePosition);
    gdt->setToleranceValueType(ExcPMIGDT::EToleranceValueType::Diameter);
    gdt->setToleranceValue(0.3);
    gdt->setZoneModifiers(EModifier::MaterialConditionMaximum, EModifier::NoModifier);
    gdt->setNote(WIDE("4X"));
    gdt->setReferenceFrame(frame({datumRef(WIDE("A"), {{kDatumA, EModifier::NoModifier}}),
                                  datumRef(WIDE("B"), {{kDatumB, EModifier::MaterialConditionMaximum}})}));
    gdt->setComposite(true);
    gdt->setCompositeToleranceValueType(ExcPMIGDT::EToleranceValueType::Diameter);
    gdt->setCompositeToleranceValue(0.1);
    gdt->setCompositeReferenceFrame(frame({datumRef(WIDE("A"), {{kDatumA, EModifier::NoModifier}})}));
    const auto leader = std::make_shared<vrx::ExcPMILeader>();
    leader->setPoints({{0, 0}, {3, 4}});
    gdt->addLeader(leader);
    view->addGdt(gdt);

    const auto dimension = onFace<ExcPMIDimension>(77, 3);
    dimension->setSubType(ESubType::Diameter);
    dimension->setUnit(ExcPMIDimension::EDimUnit::Mm);
    dimension->setValue(12.5);
    view->addDimension(dimension);

    const auto capture = std::make_shared<vrx::ExcPMICapture>();
    capture->setName(WIDE("MBD \x1B[31m front"));
    capture->addAnnotationId(WIDE("5/0/GDTs/0"));
    auto set = std::make_shared<pmi_conventions::SentAnnotationSet>();
    set->setBlockId(5);
    set->addView(view);
    set->addCapture(capture);
    return set;
}

// Through the envelope, as a host gets it.
ReceivedPmi received()
{
    pmi_conventions::receiveMechanicalData();
    const auto pmi = std::make_shared<vrx::ExcPMIData>();
    pmi->addAnnotationSet(annotations());
    const auto data = std::make_shared<vrx::ExcBlockMechanicalData>();
    data->setBlockId(5);
    data->setPMIData(pmi);
    vrx::ExchangeObjectWrapper sent;
    sent.set(data);
    vrx::ExchangeObjectWrapper got;
    vrx::bridge::fromText(vrx::bridge::toText(sent), got);
    ReceivedPmi received;
    received.add(dynamic_cast<const vrx::ExcBlockMechanicalData&>(*got.get()));
    return received;
}

TEST(Pmi, HasPlacesAndLinksOfFramesAndDatumsWhenItArrives)
{
    const ReceivedPmi pmi = received();
    ASSERT_EQ(pmi.sets().size(), 1U);
    ASSERT_EQ(pmi.sets()[0]->views().size(), 1U);
    const vrx::ExcPMIAnnotationView& view = *pmi.sets()[0]->views()[0];
    const ExcPMIGDT& gdt = *view.gdts().at(0);
    EXPECT_EQ(gdt.id(), WIDE("5/0/GDTs/0"));
    EXPECT_EQ(gdt.position()[1], 4);
    EXPECT_EQ(gdt.leaders().at(0)->points().at(1)[0], 3);
    EXPECT_EQ(gdt.linkedElements().at(0)->fsp()->subentId().index(), 3U);
    EXPECT_EQ(view.datums().at(0)->linkedElements().size(), 1U);
    EXPECT_EQ(view.dimensions().at(0)->linkedElements().size(), 1U);
    EXPECT_EQ(pmi.label(kDatumB), WIDE("B"));
    EXPECT_THAT(pmi.shownIn(gdt.id()), testing::SizeIs(1));
}

struct FrameRow
{
    const char* text;
    std::function<void(ExcPMIGDT&)> make;
};

TEST(PmiNotation, OfFeatureControlFrames)
{
    using EToleranceType = ExcPMIGDT::EToleranceType;
    const ReceivedPmi pmi = received();
    const FrameRow rows[] = {
        {"2 SURFACES INDIVIDUALLY ⏥ 0.1",
         [](auto& g) {
             g.setToleranceType(EToleranceType::FormFlatness);
             g.setNote(WIDE("2 SURFACES\nINDIVIDUALLY"));
         }},
        {"⏥ 0.4 / 0.1/25×25",
         [](auto& g) {
             g.setToleranceType(EToleranceType::FormFlatness);
             g.setRateUnit(25, 25);
             g.setRefineTolerance(0.4);
         }},
        {"⏤ ⌀0.1/25",
         [](auto& g) {
             g.setToleranceType(EToleranceType::FormStraightness);
             g.setToleranceValueType(ExcPMIGDT::EToleranceValueType::Diameter);
             g.setRateUnit(25, 25);
         }},
        {"⌓ 0.1 Ⓤ 0.25 A-B all over",
         [](auto& g) {
             g.setToleranceType(EToleranceType::FormProfileAnySurface);
             g.setShiftValue(0.2);
             g.setAllAround(pmi_conventions::kAllOver);
             g.setReferenceFrame(
                 frame({datumRef(WIDE("A-B"), {{kDatumA, EModifier::NoModifier}, {kDatumB, EModifier::NoModifier}})}));
         }},
        {"⟂ 0.1 Ⓛ Ⓣ Ⓟ 30 A Ⓜ-B Ⓜ all around",
         [](auto& g) {
             g.setToleranceType(EToleranceType::OrientationPerpendicularity);
             g.setZoneModifiers(EModifier::MaterialConditionLeast, EModifier::TangentPlantTangent);
             g.setProjectionToleranceZoneLength(30);
             g.setAllAround(pmi_conventions::kAllAround);
             g.setReferenceFrame(frame({datumRef({}, {{kDatumA, EModifier::MaterialConditionMaximum},
                                                      {kDatumB, EModifier::MaterialConditionMaximum}})}));
         }},
        {"↗ 0.1 C Ⓢ Ⓕ", // a datum that is not there, by the label alone
         [](auto& g) {
             g.setToleranceType(EToleranceType::RunOutCircular);
             g.setReferenceFrame(frame({datumRef(WIDE("C"), {{{}, EModifier::MaterialConditionRegardlessOfFeatureSize},
                                                             {{}, EModifier::FreeStateFree}})}));
         }},
        {"↗ 0.1 A-?", // in a common datum, where the label is that of all
         [](auto& g) {
             g.setToleranceType(EToleranceType::RunOutCircular);
             g.setReferenceFrame(
                 frame({datumRef(WIDE("A-C"), {{kDatumA, EModifier::NoModifier}, {{}, EModifier::NoModifier}})}));
         }},
    };
    for (const FrameRow& row : rows)
    {
        ExcPMIGDT gdt;
        gdt.setName(WIDE("mm"));
        gdt.setToleranceValue(0.1);
        row.make(gdt);
        EXPECT_EQ(mp::toNarrow(pmi_notation::lines(gdt, pmi).at(0)), row.text);
    }
}

TEST(Pmi, IsLinkedToTheBodiesThatCame)
{
    OwnedEntities bodies;
    bodies.list().add(bodyOfFaces(1));
    bodies.list().add(bodyOfFaces(3));
    const auto id = [&bodies](int body) { return vrx::ExcBlockGeometry::getEntityId(bodies.list()[body]); };
    vrx::ExcBlockGeometry geometry;
    geometry.setBlockId(5);
    geometry.own(true);
    ASSERT_TRUE(geometry.setGeometry(bodies.list(), false));

    const auto note = onFace<vrx::ExcPMINote>(id(1), 2);
    note->addLinkedElements(onFace<vrx::ExcPMINote>(id(0), 0)->linkedElements());
    note->addLinkedElements(onFace<vrx::ExcPMINote>(id(1), 0)->linkedElements());
    note->addLinkedElements(onFace<vrx::ExcPMINote>(id(0), 1)->linkedElements()); // there is none
    const auto whole = std::make_shared<vrx::ExcEntity>();
    whole->setFsp(std::make_shared<vrx::ExcFullSubentPath>(id(0), vrx::ExcSubentId(EType::Body, 0)));
    note->addLinkedElement(whole);
    const auto edge = std::make_shared<vrx::ExcEntity>();
    edge->setId(WIDE("e7"));
    note->addLinkedElement(edge);
    vrx::ExcBlockMechanicalData data;
    data.setPMIData(std::make_shared<vrx::ExcPMIData>());
    data.pmiData()->addAnnotationSet(std::make_shared<vrx::ExcPMIAnnotationSet>());
    data.pmiData()->annotationSets()[0]->setBlockId(5);
    data.pmiData()->annotationSets()[0]->addView(std::make_shared<vrx::ExcPMIAnnotationView>());
    data.pmiData()->annotationSets()[0]->views()[0]->addNote(note);
    ReceivedPmi pmi;
    pmi.add(data);
    ReceivedBodies received;
    received.add(geometry);

    std::vector<mp::wstring> ids;
    for (const BodyLink& link : received.links(note->linkedElements()))
    {
        ids.push_back(link.mechanicalId);
    }
    EXPECT_THAT(ids,
                testing::ElementsAre(WIDE("1/f2"), WIDE("0/f0"), WIDE("1/f0"), WIDE("0/f1"), WIDE("b0"), WIDE("e7")));
    std::ostringstream table;
    printPmi(table, pmi, received, {});
    EXPECT_THAT(table.str(), testing::HasSubstr("body 2 faces 2, 0; body 1 face 0; 0/f1; body 1; e7"));
}

TEST(Pmi, IsTold)
{
    std::ostringstream table;
    printPmi(table, received(), ReceivedBodies(), {});
    EXPECT_EQ(table.str(), "PMI\n"
                           "  a block that is not there: block 5\n"
                           "    dimensions\n"
                           "      ⌀ 12.5 mm  77/f3\n"
                           "    tolerances\n"
                           "      4X ⌖ ⌀0.3 Ⓜ A B Ⓜ / ⌖ ⌀0.1 A inch  77/f3  MBD  [31m front\n"
                           "    datums\n"
                           "      A (targets A1)  77/f1\n"
                           "      B\n"
                           "    datum targets\n"
                           "      A1 ⌀20 area\n"
                           "    saved views\n"
                           "      MBD  [31m front  1 annotation\n");

    rapidjson::Document json;
    json.Parse(pmiJson(received(), ReceivedBodies()).c_str());
    ASSERT_TRUE(json.IsObject());
    ASSERT_EQ(json["tolerances"].Size(), 2U);
    const auto& frame = json["tolerances"][0];
    EXPECT_STREQ(frame["text"].GetString(), "4X ⌖ ⌀0.3 Ⓜ A B Ⓜ");
    EXPECT_STREQ(frame["type"].GetString(), "location_true_position");
    EXPECT_STREQ(frame["unit"].GetString(), "inch");
    EXPECT_STREQ(frame["zone"].GetString(), "diameter");
    EXPECT_STREQ(frame["modifiers"][0].GetString(), "material_condition_maximum");
    EXPECT_STREQ(frame["datums"][1]["label"].GetString(), "B");
    EXPECT_STREQ(frame["datums"][1]["modifiers"][0].GetString(), "material_condition_maximum");
    EXPECT_STREQ(frame["views"][0].GetString(), "MBD \x1B[31m front");
    EXPECT_FALSE(frame["links"][0]["resolved"].GetBool());
    EXPECT_STREQ(json["tolerances"][1]["composite_of"].GetString(), "5/0/GDTs/0");
    EXPECT_TRUE(json["dimensions"][0]["lower"].IsNull());
    EXPECT_EQ(json["dimensions"][0]["plane"]["v"][1].GetDouble(), 1);
    EXPECT_STREQ(json["views"][0]["annotations"][0].GetString(), "5/0/GDTs/0");
}

} // namespace

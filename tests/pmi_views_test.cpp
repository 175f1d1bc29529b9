#include "tests/support/add_row.h"
#include "tests/support/envelope.h"
#include "tests/support/model_row.h"
#include "vrx_api/vrx_api_exchange_mechanical.h"

using namespace vrx;
using test::addRow;
using test::row;

namespace
{

class ViewRows : public test::ModelRows
{
};

const char* const kView = R"({"origin":[0.0,0.0,0.0],"u":[0.0,0.0,0.0],"v":[0.0,0.0,0.0]})";
const char* const kCapture = R"({"name":"","id":"","hidden":false,"capture_hidden":false,"current":false,)"
                             R"("hidden_text":"","manage_hide_show":false})";

std::string annotationSet(const std::string& more = "")
{
    return R"({"block_id":0,"name":"","hidden":false,"standart":"")" + more + "}";
}

const test::ModelRow kRows[] = {
    row<ExcPMIAnnotationView>("ViewDefault", "{}", kView),

    row<ExcPMICapture>("CaptureDefault", "{}", kCapture),
    row<ExcPMICapture>("CaptureOfAPlaneThatIsNull", R"({"clipping_plane":null})",
                       R"({"name":"","id":"","hidden":false,"capture_hidden":false,"current":false,"hidden_text":"",)"
                       R"("clipping_plane":null,"manage_hide_show":false})",
                       {"[ERROR] ExcClippingPlane object should have a JSON object type."}),
    row<ExcPMICapture>("CapturePassesOverWrongIds", R"({"annotation_ids":["a",7,"b"]})",
                       R"({"name":"","id":"","hidden":false,"capture_hidden":false,"current":false,"hidden_text":"",)"
                       R"("annotation_ids":["a","b"],"manage_hide_show":false})"),

    row<ExcPMIAnnotationSet>("SetDefault", "{}", annotationSet()),
    row<ExcPMIAnnotationSet>("SetOfANegativeBlock", R"({"block_id":-5})", annotationSet()),
    row<ExcPMIAnnotationSet>("SetReadsTheViewsOfTheReadersKey", R"({"views":[{},{}],"annotation_views":[{}]})",
                             annotationSet(R"(,"views":[)" + std::string(kView) + "]")),
    row<ExcPMIAnnotationSet>("SetKeepsTheNumberOfItsCaptures", R"({"captures":[7,{}]})",
                             annotationSet(R"(,"captures":[)" + std::string(kCapture) + "," + kCapture + "]"),
                             {"[ERROR] ExcPMICapture object should have a JSON object type."}),

    row<ExcRootMechanicalData>("RootDefault", "{}", "{}"),
    row<ExcRootMechanicalData>("RootPointsAtDefaultData", R"({"pmi_data":{}})", R"({"pmi_data":[]})",
                               {"[ERROR] ExcPMIData object should have a JSON array type."}),
};

TEST_P(ViewRows, ReadAndWritten)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, ViewRows, testing::ValuesIn(kRows), ViewRows::nameOf);

const test::AddRow kAdds[] = {
    addRow("ExcPMIAnnotationView::addNote", &ExcPMIAnnotationView::addNote,
           "ExcPMIAnnotationView: attempt to add null PMI Note object."),
    addRow("ExcPMIAnnotationView::addDatum", &ExcPMIAnnotationView::addDatum,
           "ExcPMIAnnotationView: attempt to add null PMI Datum object."),
    addRow("ExcPMIAnnotationView::addDatumTarget", &ExcPMIAnnotationView::addDatumTarget,
           "ExcPMIAnnotationView: attempt to add null PMI Datum Target object."),
    addRow("ExcPMIAnnotationView::addGdt", &ExcPMIAnnotationView::addGdt,
           "ExcPMIAnnotationView: attempt ot add null PMI GDT object."),
    addRow("ExcPMIAnnotationView::addDimension", &ExcPMIAnnotationView::addDimension,
           "ExcPMIAnnotationView: attempt to add null PMI Dimension object."),
    addRow("ExcPMIAnnotationView::addRoughness", &ExcPMIAnnotationView::addRoughness,
           "ExcPMIAnnotationView: attempt to add null PMI Roughness object."),
    addRow("ExcPMICapture::addConstructedGeometry", &ExcPMICapture::addConstructedGeometry,
           "ExcPMICapture: attempt to add null Constructed Geometry Entity object."),
    addRow("ExcPMICapture::addBody", &ExcPMICapture::addBody, "ExcPMICapture: attempt to add null Body object."),
    addRow("ExcPMIAnnotationSet::addView", &ExcPMIAnnotationSet::addView,
           "ExcPMIAnnotationSet: attempt to add null View object."),
    addRow("ExcPMIAnnotationSet::addCapture", &ExcPMIAnnotationSet::addCapture,
           "ExcPMIAnnotationSet: attempt to add null Capture object."),
    addRow("ExcPMIAnnotationSet::addConstructedGeometry", &ExcPMIAnnotationSet::addConstructedGeometry,
           "ExcPMIAnnotationSet: attempt to add null Constructed Geometry Entity object."),
    addRow("ExcPMIData::addAnnotationSet", &ExcPMIData::addAnnotationSet,
           "ExcPMIData: attempt to add null PMI Annotation Set object."),
};

class ViewAdds : public test::AddRows
{
};

TEST_P(ViewAdds, RefuseNulls)
{
    check(GetParam());
}
INSTANTIATE_TEST_SUITE_P(Pmi, ViewAdds, testing::ValuesIn(kAdds), ViewAdds::nameOf);

template <class T>
std::shared_ptr<T> withId(const wstring& id)
{
    auto made = std::make_shared<T>();
    made->setId(id);
    return made;
}

TEST(AnnotationView, FindsTheFirstAnnotationOfAnIdOfAnyKind)
{
    ExcPMIAnnotationView view;
    const auto note = withId<ExcPMINote>(WIDE("A"));
    const auto later = withId<ExcPMINote>(WIDE("A"));
    const auto target = withId<ExcPMIDatumTarget>(WIDE("T"));
    const auto dimension = withId<ExcPMIDimension>(WIDE("D"));
    const auto roughness = withId<ExcPMIRoughness>(WIDE("R"));
    const auto datum = withId<ExcPMIDatum>(WIDE("B"));
    const auto gdt = withId<ExcPMIGDT>(WIDE("G"));
    view.addNote(note);
    view.addNote(later);
    view.addDatum(datum);
    view.addDatum(withId<ExcPMIDatum>(WIDE("A")));
    view.addDatumTarget(target);
    view.addGdt(gdt);
    view.addDimension(dimension);
    view.addRoughness(roughness);
    EXPECT_EQ(view.notes(), (std::vector<std::shared_ptr<ExcPMINote>>{note, later}));
    EXPECT_EQ(view.getAnnotationById(WIDE("A")), note);
    EXPECT_EQ(view.getAnnotationById(WIDE("B")), datum);
    EXPECT_EQ(view.getAnnotationById(WIDE("T")), target);
    EXPECT_EQ(view.getAnnotationById(WIDE("G")), gdt);
    EXPECT_EQ(view.getAnnotationById(WIDE("D")), dimension);
    EXPECT_EQ(view.getAnnotationById(WIDE("R")), roughness);
    EXPECT_EQ(view.getAnnotationById(WIDE("a")), nullptr);
    EXPECT_EQ(view.getAnnotationById(wstring()), nullptr);
}

TEST(AnnotationView, FindsOfWhatItReadTheFirst)
{
    const std::string last = R"("roughness":[{}],"dimensions":[7,{}])";
    const auto view = test::readFrom<ExcPMIAnnotationView>("{" + last + "}");
    ASSERT_EQ(view.dimensions().size(), 2U);
    EXPECT_EQ(view.getAnnotationById(wstring()), view.dimensions().front());

    std::string text = "{" + last;
    std::string found;
    for (const char* const key : {"GDTs", "datum_targets", "datum", "notes"})
    {
        text += R"(,")" + std::string(key) + R"(":[{}])";
        const auto read = test::readFrom<ExcPMIAnnotationView>(text + "}");
        found += std::to_string(static_cast<int>(read.getAnnotationById(wstring())->type()));
    }
    EXPECT_EQ(found, "7213");
}

TEST(AnnotationView, EntersOnlyWhatIsNew)
{
    ExcPMIAnnotationView view;
    const auto note = withId<ExcPMINote>(WIDE("A"));
    view.addNote(note);
    note->setId(WIDE("B"));
    const ExcPMIAnnotationView copy = view;
    test::readText(view, R"({"notes":[{}]})");
    view.addNote(withId<ExcPMINote>(WIDE("C")));
    ASSERT_EQ(view.notes().size(), 3U);
    EXPECT_EQ(view.getAnnotationById(WIDE("A")), note);
    EXPECT_EQ(view.getAnnotationById(WIDE("B")), nullptr);
    EXPECT_EQ(view.getAnnotationById(wstring()), view.notes()[1]);
    EXPECT_EQ(view.getAnnotationById(WIDE("C")), view.notes()[2]);

    EXPECT_EQ(copy.getAnnotationById(WIDE("A")), note);
    EXPECT_EQ(copy.getAnnotationById(wstring()), nullptr);
}

TEST(AnnotationSet, ArrivesWithoutItsViews)
{
    ExcPMIAnnotationSet set;
    set.addView(std::make_shared<ExcPMIAnnotationView>());
    set.addCapture(withId<ExcPMICapture>(WIDE("c")));
    const auto arrived = test::readFrom<ExcPMIAnnotationSet>(test::written(set));
    EXPECT_TRUE(arrived.views().empty());
    ASSERT_EQ(arrived.captures().size(), 1U);
    EXPECT_EQ(arrived.captures().front()->id(), WIDE("c"));
}

TEST(RootMechanicalData, CrossesThroughSharedMemory)
{
    const auto data = std::make_shared<ExcPMIData>();
    data->addAnnotationSet(std::make_shared<ExcPMIAnnotationSet>());
    const auto sent = std::make_shared<ExcRootMechanicalData>();
    sent->setPMIData(data);
    sent->setLogFile(WIDE("l"));
    EXPECT_EQ(sent->objectName(), WIDE("exc_root_mechanical_data"));
    EXPECT_TRUE(sent->compress());
    EXPECT_EQ(test::written(*sent->clone()), "{}");

    const auto received = std::dynamic_pointer_cast<ExcRootMechanicalData>(test::opened(test::envelopeOf(sent)));
    ASSERT_NE(received, nullptr);
    EXPECT_TRUE(received->isLoaded());
    EXPECT_EQ(test::written(*received), test::written(*sent));
    EXPECT_EQ(received->pmiData()->annotationSets().size(), 1U);

    // What was taken from it before stays as it is.
    test::readText(*sent, R"({"pmi_data":[]})");
    EXPECT_EQ(data->annotationSets().size(), 1U);
    EXPECT_NE(sent->pmiData(), data);
}

} // namespace

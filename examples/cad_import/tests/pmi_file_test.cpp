#include "common/pmi_conventions.h"
#include "host/pmi/received_pmi.h"
#include "host/received_bodies.h"
#include "host/restored_bodies.h"
#include "imported.h"
#include "kernel_standin/kernel_standin.h"
#include "translator/pmi/feature_count.h"

#include <BRepAdaptor_Surface.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_Sewing.hxx>
#include <BinTools.hxx>
#include <Geom_CylindricalSurface.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <gmock/gmock.h>

#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace
{

TEST(PmiOfFile, NamesTheFacesOfTheBodiesThatWereSent)
{
    pmi_conventions::receiveMechanicalData();
    const Imported imported = importFile(PIN);
    ReceivedPmi pmi;
    for (const std::shared_ptr<vrx::IExchangeObject>& object : imported.objects)
    {
        if (const auto data = std::dynamic_pointer_cast<vrx::ExcBlockMechanicalData>(object))
        {
            pmi.add(*data);
        }
    }
    ASSERT_EQ(pmi.sets().size(), 1U);
    const RestoredBodies bodies(*imported.bodies.at(pmi.sets()[0]->blockId()));
    ReceivedBodies received;
    received.add(*imported.bodies.at(pmi.sets()[0]->blockId()));

    const auto& drawn = *pmi.sets()[0]->views().back();
    ASSERT_EQ(drawn.dimensions().size(), 1U);
    const vrx::ExcPMIDimension& diameter = *drawn.dimensions().front();
    const std::vector<BodyLink> links = received.links(diameter.linkedElements());
    ASSERT_EQ(links.size(), 1U);
    const auto& payload = dynamic_cast<const BODY&>(bodies.body(links[0].body)).payload();
    std::istringstream stream(std::string(payload.begin(), payload.end()), std::ios::binary);
    TopoDS_Shape shape;
    BinTools::Read(shape, stream);
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(shape, TopAbs_FACE, faces);
    const BRepAdaptor_Surface face(TopoDS::Face(faces(static_cast<int>(links[0].index) + 1)));
    ASSERT_EQ(face.GetType(), GeomAbs_Cylinder);
    EXPECT_DOUBLE_EQ(2 * face.Cylinder().Radius(), diameter.value());

    // It is drawn in the plane of the file, whose origin is 30 above the bottom.
    EXPECT_THAT((std::vector<double>{drawn.origin()[0], drawn.origin()[1], drawn.origin()[2]}),
                testing::ElementsAre(0, -15, 30));
    EXPECT_THAT((std::vector<double>{drawn.vectorV()[0], drawn.vectorV()[1], drawn.vectorV()[2]}),
                testing::ElementsAre(0, 0, 1));
    EXPECT_THAT((std::vector<double>{diameter.position()[0], diameter.position()[1]}), testing::ElementsAre(-12, 5));

    // The radius of half an inch, in millimetres.
    const auto& target = *pmi.sets()[0]->views().front()->datumTargets().at(0);
    EXPECT_DOUBLE_EQ(target.zonePoint2()[0], 6.35);
}

// The wall of a pin, in three pieces: the first one of the three meets both others.
TEST(FeatureCount, IsOneForThePiecesOfOneCylinder)
{
    const double kPi = 3.14159265358979;
    const auto piece = [](double from, double to) {
        const Handle(Geom_CylindricalSurface) surface = new Geom_CylindricalSurface(gp_Ax3(), 10);
        return BRepBuilderAPI_MakeFace(surface, from, to, 0, 5, 1e-6).Face();
    };
    BRepBuilderAPI_Sewing sewing;
    for (int i = 0; i < 3; ++i)
    {
        sewing.Add(piece(i * kPi / 3, (i + 1) * kPi / 3));
    }
    sewing.Perform();
    TopTools_IndexedMapOfShape faces;
    TopExp::MapShapes(sewing.SewedShape(), TopAbs_FACE, faces);
    ASSERT_EQ(faces.Extent(), 3);
    EXPECT_EQ(featureCount({TopoDS::Face(faces(2)), TopoDS::Face(faces(1)), TopoDS::Face(faces(3))}), 1U);
}

} // namespace

#pragma once

#include "vrx_api/vrx_api_exchange_mechanical.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

/// What an annotation is about: a face, an edge or a vertex of a body, or a whole body.
struct PmiLink
{
    bool resolved = false;    // false: no part of a body that came, and only the id below is known
    mp::wstring mechanicalId; // as in the scene
    vrx::ExcSubentId::EType type = vrx::ExcSubentId::EType::Null;
    std::uint64_t block = 0; // the block of the body
    std::size_t body = 0;    // the position of the body in it
    std::uint64_t index = 0; // of the part in the body
};

/// The product manufacturing information that a translator sends, by the rules of `pmi_conventions`, with what its ids
/// mean. The order of arrival does not matter.
class ReceivedPmi
{
public:
    void add(const vrx::ExcBlockMechanicalData& data);
    void add(const vrx::ExcRootMechanicalData& data);

    /// The bodies that links name. Throws TranslatorFailure when they can't be restored.
    void add(const vrx::ExcBlockGeometry& geometry);

    const std::vector<std::shared_ptr<vrx::ExcPMIAnnotationSet>>& sets() const { return m_sets; }

    /// How many bodies of a block came.
    std::size_t bodyCount(std::uint64_t block) const;

    std::vector<PmiLink> links(const vrx::ExcPMIAnnotation& annotation) const;

    /// The names of the saved views that show an annotation, by its id.
    std::vector<mp::wstring> shownIn(const mp::wstring& id) const;

    /// The label of a datum or a datum target, by its id; empty when there is none.
    mp::wstring label(const mp::wstring& id) const;

private:
    struct Body
    {
        std::uint64_t block = 0;
        std::size_t position = 0;
        std::map<vrx::ExcSubentId::EType, std::uint64_t> counts; // of its parts
    };

    void add(const std::shared_ptr<vrx::ExcPMIData>& data);
    PmiLink link(const vrx::ExcEntity& entity) const;

    std::vector<std::shared_ptr<vrx::ExcPMIAnnotationSet>> m_sets;
    std::map<std::uint64_t, Body> m_bodies;            // by their ids
    std::map<std::uint64_t, std::size_t> m_bodyCounts; // by block
    std::map<mp::wstring, std::vector<mp::wstring>> m_shownIn;
    std::map<mp::wstring, mp::wstring> m_labels;
};

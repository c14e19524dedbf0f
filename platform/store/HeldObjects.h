#pragma once

#include <QtGlobal>
#include <array>
#include <unordered_map>
#include <utility>

class NSManagedObject;

// The objects in memory by the ids of their records; keeps none of them alive. Ids mostly follow one another,
// so pages of plain slots beat a hash of single ids, in time when very many are looked up and in memory.
class HeldObjects
{
public:
    // Null when there is none.
    [[nodiscard]] NSManagedObject* find(qint64 id) const
    {
        const auto page = pages.find(pageOf(id));
        return page == pages.end() ? nullptr : page->second[slotOf(id)];
    }
    // There is none yet.
    void insert(qint64 id, NSManagedObject* object)
    {
        pages[pageOf(id)][slotOf(id)] = object;
        ++count;
    }
    void remove(qint64 id)
    {
        const auto page = pages.find(pageOf(id));
        if (page != pages.end() && std::exchange(page->second[slotOf(id)], nullptr) != nullptr)
            --count;
    }
    [[nodiscard]] qsizetype size() const { return count; }

    template <typename Visit>
    void forEach(Visit visit) const
    {
        for (const auto& [number, page] : pages) {
            for (auto* object : page) {
                if (object)
                    visit(*object);
            }
        }
    }

private:
    static constexpr quint64 pageSize = 1024;
    using Page = std::array<NSManagedObject*, pageSize>;

    // Unsigned, for another program may have stored a negative id.
    [[nodiscard]] static quint64 pageOf(qint64 id) { return static_cast<quint64>(id) / pageSize; }
    [[nodiscard]] static std::size_t slotOf(qint64 id) { return static_cast<quint64>(id) % pageSize; }

    std::unordered_map<quint64, Page> pages;
    qsizetype count = 0;
};

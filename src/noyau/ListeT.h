// noyau/ListeT.h
#pragma once

#include "noyau/Exceptions.h"

#include <cstddef>
#include <initializer_list>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

namespace sdd {

/// A sequence in contiguous storage whose elements are addressed from index 1.
///
/// `Croissance` and `Premier` are the growth factor and the first index of the family's list types;
/// only this pair is in use. An index outside of 1..`Taille()` throws
/// `sdd::exceptions::IndexHorsBorne`.
template <typename T, int Croissance = 2, int Premier = 1, typename Index = unsigned long long,
          typename Allocateur = std::allocator<T>>
class ListeT
{
    static_assert(Croissance == 2 && Premier == 1);
    static_assert(!std::is_same_v<T, bool>, "std::vector<bool> lends no elements; use a byte type");

public:
    using value_type = T;
    using iterator = typename std::vector<T, Allocateur>::iterator;
    using const_iterator = typename std::vector<T, Allocateur>::const_iterator;

    ListeT() = default;
    ListeT(std::initializer_list<T> elements)
        : mesElements(elements)
    {
    }

    Index Taille() const { return static_cast<Index>(mesElements.size()); }
    bool EstVide() const { return mesElements.empty(); }
    void AjouteFin(T element) { mesElements.push_back(std::move(element)); }
    void Vide() { mesElements.clear(); }

    T & operator[](Index index) { return mesElements[Place(index)]; }
    T const & operator[](Index index) const { return mesElements[Place(index)]; }

    iterator begin() { return mesElements.begin(); }
    iterator end() { return mesElements.end(); }
    const_iterator begin() const { return mesElements.begin(); }
    const_iterator end() const { return mesElements.end(); }

    friend bool operator==(ListeT const & a, ListeT const & b)
    {
        return a.mesElements == b.mesElements;
    }

private:
    std::size_t Place(Index index) const
    {
        if (index < Premier || index > Taille())
            exceptions::LanceIndexHorsBorne(index, Premier, Taille());
        return static_cast<std::size_t>(index - Premier);
    }

    std::vector<T, Allocateur> mesElements;
};

} // namespace sdd

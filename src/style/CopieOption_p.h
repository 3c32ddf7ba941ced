// style/CopieOption_p.h
#pragma once

#include <QStyleOption>

/// Calls `emploie` with a copy of `option` in its own type, where that is one of `Types`: a copy as
/// a plain `QStyleOption` would lose what the base style may read.
template <typename Type, typename... Types, typename Emploi>
void EmploieCopie(QStyleOption const & option, Emploi && emploie)
{
    if (auto const * const typee = qstyleoption_cast<Type const *>(&option)) {
        Type copie(*typee);
        emploie(copie);
    } else if constexpr (sizeof...(Types) > 0) {
        EmploieCopie<Types...>(option, emploie);
    } else {
        QStyleOption copie(option);
        emploie(copie);
    }
}

/// The option as in the active window: what shows a choice or a value looks the same in all
/// windows.
template <typename Option>
Option ActivePalette(Option option)
{
    if (option.palette.currentColorGroup() == QPalette::Inactive)
        option.palette.setCurrentColorGroup(QPalette::Active);
    return option;
}

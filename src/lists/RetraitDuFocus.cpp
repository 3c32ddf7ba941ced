// lists/RetraitDuFocus.cpp
#include "lists/RetraitDuFocus_p.h"

#include <algorithm>
#include <utility>

namespace {

bool EstPresent(QWidget const & widget, QWidget const & fenetre)
{
    return widget.isEnabled() && widget.isVisibleTo(&fenetre);
}

} // namespace

RetraitDuFocus::~RetraitDuFocus()
{
    for (Politiques const & politiques : std::as_const(mesRetraits))
        std::for_each(politiques.begin(), politiques.end(), RendsPolitique);
}

void RetraitDuFocus::Retire(QWidget & widget)
{
    Politiques & politiques = mesRetraits[&widget];
    OublieCeuxQuiSontPartis(widget, politiques);
    RetireAvecEnfants(widget, politiques);
}

void RetraitDuFocus::Rends(QWidget const * widget)
{
    Politiques const politiques = mesRetraits.take(widget);
    std::for_each(politiques.begin(), politiques.end(), RendsPolitique);
}

void RetraitDuFocus::CedeFocus(QWidget & fenetre, QWidget * prefere)
{
    QWidget * const focus = fenetre.focusWidget();
    QWidget * const retiray = TrouveRetire(focus);
    if (!retiray)
        return;
    // What has come into it or got a policy since would have the focus next, and again from there.
    Retire(*retiray);
    if (prefere && prefere->focusPolicy() != Qt::NoFocus && EstPresent(*prefere, fenetre)) {
        prefere->setFocus(Qt::OtherFocusReason);
        return;
    }
    for (QWidget * suivant = focus->nextInFocusChain(); suivant && suivant != focus;
         suivant = suivant->nextInFocusChain()) {
        if (suivant->window() == &fenetre && (suivant->focusPolicy() & Qt::TabFocus) &&
            !suivant->focusProxy() && EstPresent(*suivant, fenetre)) {
            suivant->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
    focus->clearFocus();
}

void RetraitDuFocus::RendsPolitique(Politique const & politique)
{
    if (politique.widget && politique.widget->focusPolicy() == Qt::NoFocus)
        politique.widget->setFocusPolicy(politique.valeur);
}

void RetraitDuFocus::OublieCeuxQuiSontPartis(QWidget const & widget, Politiques & politiques)
{
    auto const parti = [&](Politique const & politique) {
        if (politique.widget == &widget || widget.isAncestorOf(politique.widget))
            return false;
        RendsPolitique(politique);
        return true;
    };
    politiques.removeIf(parti);
}

void RetraitDuFocus::RetireAvecEnfants(QWidget & widget, Politiques & politiques)
{
    if (widget.focusPolicy() != Qt::NoFocus && !widget.focusProxy()) {
        auto const ancienne =
            std::find_if(politiques.begin(), politiques.end(),
                         [&](Politique const & politique) { return politique.widget == &widget; });
        if (ancienne != politiques.end())
            ancienne->valeur = widget.focusPolicy();
        else
            politiques.append({&widget, widget.focusPolicy()});
        widget.setFocusPolicy(Qt::NoFocus);
    }
    for (QObject * const enfant : widget.children()) {
        auto * const widgetEnfant = qobject_cast<QWidget *>(enfant);
        if (widgetEnfant && !widgetEnfant->isWindow())
            RetireAvecEnfants(*widgetEnfant, politiques);
    }
}

QWidget * RetraitDuFocus::TrouveRetire(QWidget * widget) const
{
    while (widget && !mesRetraits.contains(widget))
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return widget;
}

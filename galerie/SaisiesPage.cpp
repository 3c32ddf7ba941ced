// galerie/SaisiesPage.cpp
#include "SaisiesPage.h"

#include "controls/DBoutonAbstrait.h"

#include <QComboBox>
#include <QMetaProperty>

namespace {

// What the user gives `widget`: its text, its number, its check mark.
QMetaProperty DonneSaisie(QWidget const & widget)
{
    QMetaObject const & classe = *widget.metaObject();
    // Not the text of a choice, which is of one language.
    return qobject_cast<QComboBox const *>(&widget)
               ? classe.property(classe.indexOfProperty("currentIndex"))
               : classe.userProperty();
}

// Those of the page that have a name, but for the inner ones of Qt's widgets.
QList<QWidget *> DonneNommes(QWidget const & page)
{
    QList<QWidget *> nommes;
    for (QWidget * const widget : page.findChildren<QWidget *>())
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(u"qt_") &&
            (qobject_cast<DBoutonAbstrait *>(widget) || DonneSaisie(*widget).isWritable()))
            nommes.append(widget);
    return nommes;
}

// What was typed and is none of the choices.
bool EstTexteLibre(QComboBox const & combo)
{
    return combo.isEditable() && combo.currentText() != combo.itemText(combo.currentIndex());
}

QVariant LisSaisie(QWidget const & widget)
{
    auto const * const combo = qobject_cast<QComboBox const *>(&widget);
    if (combo != nullptr && EstTexteLibre(*combo))
        return combo->currentText();
    // Made of other widgets, it has no property of its own.
    if (auto const * const bouton = qobject_cast<DBoutonAbstrait const *>(&widget))
        return bouton->EstCochay();
    return DonneSaisie(widget).read(&widget);
}

void EcrisSaisie(QWidget & widget, QVariant const & saisie)
{
    if (auto * const bouton = qobject_cast<DBoutonAbstrait *>(&widget))
        bouton->MetsCochay(saisie.toBool());
    else if (auto * const combo = qobject_cast<QComboBox *>(&widget);
             combo != nullptr && saisie.typeId() == QMetaType::QString)
        combo->setEditText(saisie.toString());
    else
        DonneSaisie(widget).write(&widget, saisie);
}

} // namespace

SaisiesPage LisSaisies(QWidget const & page)
{
    SaisiesPage saisies;
    for (QWidget const * const widget : DonneNommes(page))
        saisies[widget->objectName()].append(LisSaisie(*widget));
    return saisies;
}

// Nothing stands in their places, so that those of one name keep their order.
SaisiesPage OteTextesParDefaut(SaisiesPage saisies, SaisiesPage const & defauts)
{
    for (auto saisie = saisies.begin(); saisie != saisies.end(); ++saisie) {
        QVariantList const deDepart = defauts.value(saisie.key());
        for (int i = 0; i < saisie->size() && i < deDepart.size(); ++i)
            if (saisie->at(i).typeId() == QMetaType::QString && saisie->at(i) == deDepart.at(i))
                (*saisie)[i] = QVariant();
    }
    return saisies;
}

// Widgets of one name, as the two fields of a search bar, take theirs in turn.
void RemetsSaisies(QWidget const & page, SaisiesPage saisies)
{
    for (QWidget * const widget : DonneNommes(page)) {
        auto const restantes = saisies.find(widget->objectName());
        if (restantes == saisies.end() || restantes->isEmpty())
            continue;
        QVariant const saisie = restantes->takeFirst();
        // Some tell of a value that is written even when it is the same.
        if (saisie.isValid() && LisSaisie(*widget) != saisie)
            EcrisSaisie(*widget, saisie);
    }
}

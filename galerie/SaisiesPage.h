// galerie/SaisiesPage.h
#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

class QWidget;

/// What was typed and chosen in a page, by the names of its widgets: those of one name in their
/// order.
using SaisiesPage = QHash<QString, QVariantList>;

SaisiesPage LisSaisies(QWidget const & page);

/// Without the texts that are still those of `defauts`: they are in the language of the old page.
SaisiesPage OteTextesParDefaut(SaisiesPage saisies, SaisiesPage const & defauts);

/// Gives it to the widgets of another page, or of the same one built anew.
void RemetsSaisies(QWidget const & page, SaisiesPage saisies);

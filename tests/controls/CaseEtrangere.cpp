// tests/controls/CaseEtrangere.cpp
//
// A source of its own: no header that declares the library's class may be seen here.
#include "controls/CaseEtrangere.h"

namespace {

class CheckBoxHover : public QCheckBox
{
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;
};

} // namespace

std::unique_ptr<QCheckBox> CaseEtrangere::Cree(QString const & texte)
{
    return std::make_unique<CheckBoxHover>(texte);
}

#include "CaseEtrangere.moc"

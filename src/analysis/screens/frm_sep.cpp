// FrmSEP, the SEP analysis.
#include "analysis/screens/frm_sep.h"

#include "platform/screens/navegacion.h"

FrmSEP::FrmSEP(QWidget* padre) : FrmHabiliObjet(padre, true) {}

FrmSEP::~FrmSEP() = default;

FuentesExportacion FrmSEP::Fuentes() {
    if (auto* abierta =
            qobject_cast<FrmHabiliObjet*>(Pantalla_Abierta(QStringLiteral("FrmHabiliObjet"))))
        return abierta->Fuentes_Propias();
    if (!habili_objet_) habili_objet_ = std::make_unique<FrmHabiliObjet>();
    return habili_objet_->Fuentes_Propias();
}

// FrmSEP, "Imprimir SEP": the axes and skills screen with the SEP switch on. Its reports of
// kinds 5 to 9 name their axes and take their chart from the axes screen FrmHabiliObjet, the
// one open, or else one loaded for the purpose and kept hidden.
#pragma once

#include <memory>

#include "analysis/screens/frm_habili_objet.h"

class FrmSEP : public FrmHabiliObjet {
    Q_OBJECT
  public:
    explicit FrmSEP(QWidget* padre = nullptr);
    ~FrmSEP() override;

  protected:
    FuentesExportacion Fuentes() override;

  private:
    std::unique_ptr<FrmHabiliObjet> habili_objet_;
};

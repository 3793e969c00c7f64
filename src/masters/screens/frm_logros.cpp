// Frm_Logros, "Mantenedor de Niveles de Logro".
#include "masters/screens/frm_logros.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <vector>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"

namespace {

struct Nivel {
    const char* concepto;
    const char* cajas;  // the boxes are Txt_<cajas>_Ini and Txt_<cajas>_Fin
    const char* palabras;
};

// In the order the screen reads and stores them.
constexpr Nivel kNiveles[] = {
    {"D", "D", "D: Eje Desarrollado"},
    {"ND", "ND", "ND: Eje No Desarrollado"},
    {"PD", "PD", "PD: Eje en Proceso de Desarrollo"},
    {"NB", "Nivel_Bajo", "Nivel Bajo"},
    {"NMB", "Nivel_Medio_Bajo", "Nivel Medio Bajo"},
    {"NMA", "Nivel_Medio_Alto", "Nivel Medio Alto"},
    {"NA", "Nivel_Alto", "Nivel Alto"},
};

QString Ini(const Nivel& n) {
    return QStringLiteral("Txt_%1_Ini").arg(QLatin1String(n.cajas));
}
QString Fin(const Nivel& n) {
    return QStringLiteral("Txt_%1_Fin").arg(QLatin1String(n.cajas));
}

enum class Prueba { Mayor, Menor, Igual };

// One check: box `a` against box `b`, or against 0 when `b` is empty.
struct Regla {
    const char* a;
    Prueba prueba;
    const char* b;
    const char* palabras;
};

constexpr Regla kReglas[] = {
    {"Txt_PD_Ini", Prueba::Mayor, "Txt_PD_Fin",
     "El PD Inicial no puede ser mayor al PD final. verifique"},
    {"Txt_PD_Fin", Prueba::Igual, "",
     "El Eje en Proceso de Desarrollo Final no puede ser 0. verifique"},
    {"Txt_ND_Ini", Prueba::Menor, "Txt_PD_Fin",
     "El ND Inicial no puede ser Menor al PD Final. verifique"},
    {"Txt_ND_Ini", Prueba::Igual, "Txt_PD_Fin",
     "El ND Inicial no puede ser igual al PD Final. verifique"},
    {"Txt_ND_Ini", Prueba::Mayor, "Txt_ND_Fin",
     "El ND Inicial no puede ser mayor al ND final. verifique"},
    {"Txt_ND_Fin", Prueba::Igual, "", "El ND Final no puede ser 0. verifique"},
    {"Txt_ND_Fin", Prueba::Mayor, "Txt_D_Ini",
     "El ND Final no puede ser MAyor al D Inicial. verifique"},
    {"Txt_ND_Fin", Prueba::Igual, "Txt_D_Ini",
     "El ND Final no puede ser igual al D Inicial. verifique"},
    {"Txt_D_Ini", Prueba::Mayor, "Txt_D_Fin",
     "El D Inicial no puede ser Mayor al D Final. verifique"},
    {"Txt_D_Fin", Prueba::Igual, "", "El D Final no puede ser 0. verifique"},
};

bool Falla(Prueba prueba, double a, double b) {
    switch (prueba) {
        case Prueba::Mayor:
            return a > b;
        case Prueba::Menor:
            return a < b;
        case Prueba::Igual:
            return a == b;
    }
    return false;
}

}  // namespace

Frm_Logros::Frm_Logros(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("Frm_Logros"));
    setWindowTitle(QStringLiteral("Mantenedor de Niveles de Logro"));
    auto* capa = new QGridLayout(this);
    capa->addWidget(new QLabel(QStringLiteral("Desde %"), this), 0, 1);
    capa->addWidget(new QLabel(QStringLiteral("Hasta %"), this), 0, 2);
    int fila = 1;
    for (const Nivel& n : kNiveles) {
        capa->addWidget(new QLabel(QString::fromUtf8(n.palabras), this), fila, 0);
        capa->addWidget(Caja(this, Ini(n)), fila, 1);
        capa->addWidget(Caja(this, Fin(n)), fila++, 2);
    }
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(Boton(this, QStringLiteral("XPButAceptar"), QStringLiteral("Aceptar"),
                             [this] { XPButAceptar_Click(); }));
    botones->addWidget(Boton(this, QStringLiteral("XPButCancelar"), QStringLiteral("Cancelar"),
                             [this] { close(); }));
    capa->addLayout(botones, fila, 0, 1, 3);
    capa->setRowStretch(fila + 1, 1);
    resize(460, 300);
    Ejecutar_Comando([this] { Form_Load(); });
}

QLineEdit* Frm_Logros::Caja_Logro(const QString& nombre) const {
    return findChild<QLineEdit*>(nombre);
}

double Frm_Logros::Valor(const QString& nombre) const {
    return Numero_Digitado(Caja_Logro(nombre)->text());
}

void Frm_Logros::Form_Load() {
    bool hay = false;
    Carga_Niveles_Logros(hay);
    if (hay) return;
    dialogos().MsgBox(QStringLiteral("No existe Niveles de Logro , verifique ."), vbExclamation,
                      QStringLiteral("Mantenedor de Niveles de Logro"));
    for (const Nivel& n : kNiveles) {
        Caja_Logro(Ini(n))->setText(QStringLiteral("0"));
        Caja_Logro(Fin(n))->setText(QStringLiteral("0"));
    }
}

// Only the row D decides whether levels exist.
void Frm_Logros::Carga_Niveles_Logros(bool& hay) {
    for (const Nivel& n : kNiveles) {
        Recordset rs = estado().BaseDatos->OpenRecordset(
            QStringLiteral("select desde, hasta from NivelesCalificacion where concepto in(?)"),
            {QString::fromUtf8(n.concepto)});
        if (QLatin1String(n.concepto) == QLatin1String("D")) hay = !rs.Eof();
        for (; !rs.Eof(); rs.MoveNext()) {
            Caja_Logro(Ini(n))->setText(CStr(rs[0].toDouble()));
            Caja_Logro(Fin(n))->setText(CStr(rs[1].toDouble()));
        }
    }
}

// The axis ranges climb PD, ND, D without touching; the four levels are not checked.
bool Frm_Logros::Fnc_Validar_Rangos() {
    for (const Regla& r : kReglas) {
        const double b = *r.b ? Valor(QString::fromUtf8(r.b)) : 0;
        if (!Falla(r.prueba, Valor(QString::fromUtf8(r.a)), b)) continue;
        dialogos().MsgBox(QString::fromUtf8(r.palabras), vbCritical,
                          QStringLiteral("Mantenedor de Logros"));
        return false;
    }
    return true;
}

void Frm_Logros::XPButAceptar_Click() {
    if (!Fnc_Validar_Rangos()) return;
    // Every box is read before the delete: a box that holds no number stops the save whole.
    std::vector<QVariantList> filas;
    for (const Nivel& n : kNiveles)
        filas.push_back({QString::fromUtf8(n.concepto), Valor(Ini(n)), Valor(Fin(n))});
    BaseDatos& base = *estado().BaseDatos;
    base.Execute(
        QStringLiteral(" delete from NivelesCalificacion  where concepto "
                       "in('D','ND','PD','NB','NMB','NMA','NA')"));
    for (const QVariantList& fila : filas)
        base.Execute(QStringLiteral(" insert into NivelesCalificacion values(?, ?, ?)"), fila);
    close();
}

// The test creation screens.
#include "setup/screens/generador_prueba.h"

#include <QComboBox>
#include <QDate>
#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/estado.h"
#include "platform/base_datos.h"
#include "platform/dialogos.h"
#include "platform/numeros.h"
#include "platform/screens/controles.h"
#include "platform/screens/lista_clave.h"
#include "platform/screens/navegacion.h"
#include "setup/screens/frm_ing_manual.h"
#include "store/contadores.h"
#include "store/copias_prueba.h"

namespace {

BaseDatos& Base() {
    return *estado().BaseDatos;
}

const char* const kAsignaturasSimce[] = {"Lenguaje y Comunicación",
                                         "Educación Matemática",
                                         "Comprensión del Medio Social y Cultural",
                                         "Estudio y Comprensión de la Naturaleza",
                                         "Estudio y Comprensión de la Sociedad",
                                         "Lengua Castellana y Comunicación",
                                         "Matemática"};

void Llena(QComboBox* lista, int desde, int hasta) {
    lista->clear();
    for (int i = desde; i <= hasta; ++i) lista->addItem(QString::number(i));
}

void Llena_Consulta(QComboBox* lista, const QString& sql) {
    lista->clear();
    for (Recordset rs = Base().OpenRecordset(sql); !rs.Eof(); rs.MoveNext())
        lista->addItem(rs[0].toString());
    lista->setCurrentIndex(-1);
}

bool Tabla_Vacia(const QString& tabla) {
    return Base().OpenRecordset(QStringLiteral("select count(*) from %1").arg(tabla))[0].toInt() ==
           0;
}

// A list reduced to the copied test's value, so that it can't be changed.
void Fija(QComboBox* lista, const QString& valor) {
    lista->clear();
    lista->addItem(valor);
    lista->setCurrentIndex(0);
    lista->setEnabled(false);
}

}  // namespace

GeneradorPrueba::GeneradorPrueba(TipoGenerador tipo, QWidget* padre) : QWidget(padre), tipo_(tipo) {
    static const char* const kTitulos[] = {
        "Generación de Prueba General", "Generador de pruebas  PSU", "Generador de pruebas SIMCE"};
    static const char* const kNombres[] = {"FrmGenePru", "FrmGenePsuPru", "FrmGeneSimcePru"};
    setWindowTitle(QString::fromUtf8(kTitulos[int(tipo)]));
    setObjectName(QString::fromUtf8(kNombres[int(tipo)]));
    Construye();
    Form_Load();
}

void GeneradorPrueba::Construye() {
    const auto lista = [this](const char* nombre) {
        auto* c = new QComboBox(this);
        c->setObjectName(QString::fromUtf8(nombre));
        return c;
    };
    TxtNum = Caja(this, QStringLiteral("TxtNum"));
    TxtNum->setReadOnly(true);
    TxtNombre = Caja(this, QStringLiteral("TxtNombre"));
    TxtTipPru = Caja(this, tipo_ == TipoGenerador::PSU ? QStringLiteral("TxtTipPruPSU")
                                                       : QStringLiteral("TxtTipPru"));
    TxtTipPru->setReadOnly(true);
    TxtTipPru->setText(tipo_ == TipoGenerador::General ? QStringLiteral("GENERAL")
                       : tipo_ == TipoGenerador::PSU   ? QStringLiteral("PSU")
                                                       : QStringLiteral("SIMCE"));
    CmbProfe = lista("CmbProfe");
    CmbAsig = lista("CmbAsig");
    CmbCurso = lista("CmbCurso");
    txtFecha = Caja(this, QStringLiteral("txtFecha"));
    txtFecha->setReadOnly(true);
    CmbPreSelMul = lista(tipo_ == TipoGenerador::PSU ? "CboNumeroPreguntas" : "CmbPreSelMul");
    TxtNumeroPreguntas = Caja(this, QStringLiteral("TxtNumeroPreguntas"));
    TxtNumeroPreguntas->setVisible(false);
    CmbNunAlterxpreg = lista("CmbNunAlterxpreg");
    CmbNumForma = lista("CmbNumForma");
    CmbPuntBase = lista("CmbPuntBase");
    CmbNivEva = lista("CmbNivEva");
    CmbNiveles = lista("CmbNiveles");
    FraForingmatriz = new QGroupBox(this);
    OptIngpautpantalla =
        new QRadioButton(QStringLiteral("Ingreso de pauta por pantalla"), FraForingmatriz);
    OptIngrPautOptica =
        new QRadioButton(QStringLiteral("Ingreso de pauta óptica"), FraForingmatriz);
    OptIngpautpantalla->setChecked(true);
    auto* opciones = new QVBoxLayout(FraForingmatriz);
    opciones->addWidget(OptIngpautpantalla);
    opciones->addWidget(OptIngrPautOptica);
    XPButAceptar = Boton(this, QStringLiteral("XPButAceptar"), QStringLiteral("Aceptar"),
                         [this] { XPButAceptar_Click(); });
    XPButCancelar = Boton(this, QStringLiteral("XPButCancelar"), QStringLiteral("Cancelar"),
                          [this] { close(); });
    auto* capa = new QFormLayout(this);
    capa->addRow(QStringLiteral("Número:"), TxtNum);
    capa->addRow(QStringLiteral("Nombre:"), TxtNombre);
    capa->addRow(QStringLiteral("Tipo:"), TxtTipPru);
    capa->addRow(QStringLiteral("Profesor:"), CmbProfe);
    if (tipo_ == TipoGenerador::SIMCE) capa->addRow(QStringLiteral("Nivel:"), CmbNiveles);
    capa->addRow(QStringLiteral("Asignatura:"), CmbAsig);
    capa->addRow(QStringLiteral("Curso:"), CmbCurso);
    capa->addRow(QStringLiteral("Fecha:"), txtFecha);
    capa->addRow(QStringLiteral("Preguntas:"), CmbPreSelMul);
    capa->addRow(QStringLiteral("Alternativas por pregunta:"), CmbNunAlterxpreg);
    capa->addRow(QStringLiteral("Formas:"), CmbNumForma);
    capa->addRow(QStringLiteral("Puntaje base:"), CmbPuntBase);
    capa->addRow(QStringLiteral("Niveles de evaluación:"), CmbNivEva);
    capa->addRow(FraForingmatriz);
    capa->addRow(XPButAceptar, XPButCancelar);
    CmbNiveles->setVisible(tipo_ == TipoGenerador::SIMCE);
    connect(CmbAsig, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CmbAsig_Click(); }); });
    connect(CmbNiveles, &QComboBox::activated, this,
            [this] { Ejecutar_Comando([this] { CmbNiveles_Click(); }); });
    resize(520, 560);
}

void GeneradorPrueba::Form_Load() {
    Estado& e = estado();
    txtFecha->setText(QDate::currentDate().toString(QStringLiteral("dd/MM/yy")));
    if (e.Copia_Activa) return Carga_Copia();
    TxtNum->setText(CStr(int(Siguiente_Indice(QStringLiteral("PRUEBA")))));
    if (!Tablas_Con_Datos()) {
        if (tipo_ == TipoGenerador::General) e.Pantalla_Valida = false;
        return;
    }
    Llena_Listas();
    if (tipo_ == TipoGenerador::General) e.Pantalla_Valida = true;
}

bool GeneradorPrueba::Tablas_Con_Datos() {
    if (tipo_ == TipoGenerador::PSU) return true;
    const QString titulo = QStringLiteral("Genera Pruebas");
    const std::pair<const char*, const char*> tablas[] = {
        {"profesores", "La tabla de Profesores esta vacia, ingrese los datos he intente de nuevo"},
        {"Asignaturas",
         "La tabla de Asignaturas esta vacia, ingrese los datos he intente de nuevo"},
        {"CURSOS", "La tabla de Cursos esta vacia, cargue los Alumnos he intente de nuevo"},
    };
    for (const auto& [tabla, aviso] : tablas) {
        // The SIMCE subjects are a fixed list: its screen needs no subjects table.
        if (tipo_ == TipoGenerador::SIMCE && QLatin1String(tabla) == QLatin1String("Asignaturas"))
            continue;
        if (Tabla_Vacia(QString::fromUtf8(tabla))) {
            dialogos().MsgBox(QString::fromUtf8(aviso), vbCritical, titulo);
            return false;
        }
    }
    return true;
}

void GeneradorPrueba::Llena_Listas() {
    Llena_Consulta(CmbProfe, QStringLiteral("select NombreProfesor from profesores"));
    Llena_Consulta(CmbCurso, QStringLiteral(" select curso from cursos "));
    Llena(CmbPreSelMul, 1, 100);
    Llena(CmbNumForma, 1, 4);
    Llena(CmbPuntBase, 1, 7);
    Llena(CmbNivEva, 1, 5);
    CmbPuntBase->setCurrentIndex(0);
    CmbNivEva->setCurrentIndex(0);
    CmbPreSelMul->setCurrentIndex(-1);
    CmbNumForma->setCurrentIndex(-1);
    switch (tipo_) {
        case TipoGenerador::General:
            Llena(CmbNunAlterxpreg, 2, 5);
            Llena_Consulta(CmbAsig, QStringLiteral("select Asignatura from Asignaturas"));
            break;
        case TipoGenerador::PSU: {
            Llena(CmbNunAlterxpreg, 5, 5);
            CmbAsig->clear();
            Recordset rs = Base().OpenRecordset(QStringLiteral(
                " select id_psu, nombre_psu, numero_preguntas from Puntajes_PSU_NEW"));
            for (; !rs.Eof(); rs.MoveNext())
                Agrega_Item(CmbAsig, rs[1].toString(), rs[2].toString());
            CmbAsig->setCurrentIndex(-1);
            if (CmbAsig->count() == 0) {
                dialogos().MsgBox(QStringLiteral("No existen priebas PSU creadas, favor Ingreselas "
                                                 "en Base de Datos \\ Mantenedor PSU"),
                                  vbOKOnly, QStringLiteral("Ingreso Pruebas PSU"));
                XPButAceptar->setEnabled(false);
            }
            break;
        }
        case TipoGenerador::SIMCE:
            Llena(CmbNunAlterxpreg, 3, 5);
            Agrega_Item(CmbNiveles, QStringLiteral("Cuarto Básico"), QStringLiteral("4"));
            Agrega_Item(CmbNiveles, QStringLiteral("Octavo Básico"), QStringLiteral("8"));
            Agrega_Item(CmbNiveles, QStringLiteral("II Medio"), QStringLiteral("10"));
            CmbNiveles_Click();
            break;
    }
    CmbNunAlterxpreg->setCurrentIndex(-1);
}

void GeneradorPrueba::CmbAsig_Click() {
    if (tipo_ != TipoGenerador::PSU) return;
    TxtNumeroPreguntas->setText(Clave_Item(Item_Lista(*CmbAsig)));
    CmbPreSelMul->setCurrentIndex(CmbPreSelMul->findText(TxtNumeroPreguntas->text()));
}

void GeneradorPrueba::CmbNiveles_Click() {
    CmbAsig->clear();
    for (const char* a : kAsignaturasSimce) CmbAsig->addItem(QString::fromUtf8(a));
    CmbAsig->setCurrentIndex(-1);
}

void GeneradorPrueba::Carga_Copia() {
    const Estado& e = estado();
    TxtNum->setText(CStr(int(e.Id_Prueba_Copia)));
    TxtNombre->clear();
    Llena_Consulta(CmbProfe, QStringLiteral("select NombreProfesor from profesores"));
    Llena_Consulta(CmbCurso, QStringLiteral(" select curso from cursos "));
    Recordset origen = Base().OpenRecordset(
        QStringLiteral("select * from prueba_rj where idprueba = ?"), {e.Id_Prueba_Origen});
    Fija(CmbPreSelMul, origen[QStringLiteral("Pregunta_Seleccion")].toString());
    Fija(CmbNumForma, origen[QStringLiteral("Numero_Forma")].toString());
    Fija(CmbNunAlterxpreg, origen[QStringLiteral("Numero_Alternativas")].toString());
    Fija(CmbAsig, origen[QStringLiteral("Asignatura")].toString());
    Llena(CmbPuntBase, 1, 7);
    CmbPuntBase->setCurrentIndex(0);
    FraForingmatriz->setVisible(false);
}

#include "lessons/rsa/windows/FormRSACodificacion.h"

#include "lessons/rsa/windows/FormRSABloques.h"
#include "lessons/rsa/windows/FormRSATexto.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormRSACodificacion.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

FormRSACodificacion::FormRSACodificacion(ClsRSA &clave, FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormRSACodificacion>()),
      m_clave(clave),
      m_leccion(leccion),
      m_bloques(Traduce(u"^Texto codificado"_s)),
      m_mandos(leccion->corrida())
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdCodificar->setIcon(Icono(u"CODIFICAR"_s));
    ui->cmdDescodificar->setIcon(Icono(u"DESCODIFICAR"_s));
    ui->FlexTextoCodificado->setModel(&m_bloques);
    ui->FlexTextoCodificado->ponTextoVacio(Traduce(u"Aquí aparece un número por cada paquete"_s));
    ui->FlexTextoCodificado->setItemDelegate(new FormRSABloques(ui->FlexTextoCodificado));
    QHeaderView *columna = ui->FlexTextoCodificado->horizontalHeader();
    columna->setSectionResizeMode(QHeaderView::Stretch);
    ui->FlexTextoCodificado->verticalHeader()->setMinimumSectionSize(1);
    conecta(columna, &QHeaderView::sectionResized, this, &FormRSACodificacion::ajustaFilas);
    conecta(ui->cmdCodificar, &QPushButton::clicked, this,
            &FormRSACodificacion::cmdCodificar_Click);
    conecta(ui->cmdDescodificar, &QPushButton::clicked, this,
            &FormRSACodificacion::cmdDescodificar_Click);
}

FormRSACodificacion::~FormRSACodificacion() = default;

void FormRSACodificacion::permiteCodificar(bool permitido)
{
    ui->cmdCodificar->setEnabled(permitido);
    ui->cmdDescodificar->setEnabled(permitido);
}

/// All rows are as high as the longest number asks for: measuring each would take seconds.
void FormRSACodificacion::ajustaFilas()
{
    qsizetype cifras = 0;
    for (const QStringList &fila : m_bloques.filas())
        cifras = std::max(cifras, fila.constFirst().size());
    const Rejilla *rejilla = ui->FlexTextoCodificado;
    rejilla->verticalHeader()->setDefaultSectionSize(
        FormRSABloques::alto(rejilla->fontMetrics(), cifras, rejilla->columnWidth(0)));
}

void FormRSACodificacion::cmdCodificar_Click()
{
    m_mandos.pulsa(ui->cmdCodificar, [this] { codifica(); });
}

void FormRSACodificacion::cmdDescodificar_Click()
{
    m_mandos.pulsa(ui->cmdDescodificar, [this] { descodifica(); });
}

void FormRSACodificacion::codifica()
{
    const QString texto = ui->txtTextoOriginal->toPlainText();
    if (!seCodifica(this, texto))
        return;
    if (m_clave.r() < 1) {
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                               Traduce(u"Cada paquete ha de tener al menos un carácter."_s),
                               Traduce(u"Tamaño de la palabra"_s));
        return;
    }
    QStringList bloques;
    m_mandos.corre(ui->cmdCodificar, Traduce(u"Detener la codificación"_s),
                   [&] { bloques = m_clave.Codifica(texto, m_leccion->corrida()); });
    QList<QStringList> filas;
    for (const QString &bloque : bloques)
        filas << QStringList{bloque};
    m_bloques.ponFilas(filas);
    ajustaFilas();
    ui->lblEstadoCodigo->setText(Traduce(u"Paquetes: %1"_s).arg(formatoEntero(bloques.size())));
}

void FormRSACodificacion::descodifica()
{
    QStringList bloques;
    for (const QStringList &fila : m_bloques.filas())
        bloques << fila.constFirst();
    m_mandos.corre(ui->cmdDescodificar, Traduce(u"Detener la descodificación"_s), [&] {
        ui->txtTextoOriginal->ponTexto(m_clave.DesCodifica(bloques, m_leccion->corrida()));
    });
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/PaletaDeOrdenes.h"

#include "shell/access/Anuncio.h"
#include "shell/core/Afinidad.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

enum Columna { Titulo, Grupo, Tecla, Columnas };

constexpr int LetrasDeAncho = 78;
constexpr int FilasALaVista = 12;

} // namespace

PaletaDeOrdenes::PaletaDeOrdenes(QList<OrdenDePaleta> ordenes, QWidget *padre)
    : QDialog(padre),
      m_ordenes(std::move(ordenes)),
      m_campo(new QLineEdit(this)),
      m_lista(new QTreeWidget(this)),
      m_nada(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(u"PaletaDeOrdenes"_s);
    setWindowTitle(Traduce(u"Buscar una orden"_s));
    m_campo->setObjectName(u"txtOrden"_s);
    m_campo->setAccessibleName(Traduce(u"Orden que se busca"_s));
    m_campo->setPlaceholderText(Traduce(u"Lección, tema, herramienta, página o práctica"_s));
    m_campo->installEventFilter(this);
    m_lista->setObjectName(u"listaDeOrdenes"_s);
    m_lista->setAccessibleName(Traduce(u"Órdenes halladas"_s));
    m_lista->setFocusPolicy(Qt::NoFocus);
    m_lista->setColumnCount(Columnas);
    m_lista->setRootIsDecorated(false);
    m_lista->setUniformRowHeights(true);
    m_lista->setHeaderHidden(true);
    m_lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lista->header()->setStretchLastSection(false);
    m_lista->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_lista->header()->setSectionResizeMode(Titulo, QHeaderView::Stretch);
    m_nada->setObjectName(u"lblNada"_s);
    m_nada->setWordWrap(true);
    auto *columna = new QVBoxLayout(this);
    for (QWidget *parte : {static_cast<QWidget *>(m_campo), static_cast<QWidget *>(m_nada),
                           static_cast<QWidget *>(m_lista)})
        columna->addWidget(parte);
    const QFontMetrics letra = fontMetrics();
    resize(LetrasDeAncho * letra.averageCharWidth(), (FilasALaVista + 3) * 3 * letra.height() / 2);
    connect(m_campo, &QLineEdit::textChanged, this, &PaletaDeOrdenes::filtra);
    connect(m_lista, &QTreeWidget::currentItemChanged, this, &PaletaDeOrdenes::dice);
    connect(m_lista, &QTreeWidget::itemClicked, this, &PaletaDeOrdenes::elige);
    filtra();
}

/// Shows what answers the field, the best first and its first row chosen.
void PaletaDeOrdenes::filtra()
{
    const QString buscado = m_campo->text();
    QList<std::pair<int, int>> halladas; // how well, less than 0, and which
    for (int i = 0; i < m_ordenes.size(); ++i) {
        const OrdenDePaleta &orden = m_ordenes[i];
        if (const int como = afinidad(buscado, orden.titulo, orden.grupo + u' ' + orden.detalle))
            halladas << std::pair(-como, i);
    }
    std::sort(halladas.begin(), halladas.end());
    QList<QTreeWidgetItem *> filas;
    for (const auto &[como, i] : halladas) {
        const OrdenDePaleta &orden = m_ordenes[i];
        auto *fila = new QTreeWidgetItem({orden.titulo, orden.grupo, orden.tecla});
        fila->setIcon(Titulo, orden.icono);
        fila->setData(Titulo, Qt::UserRole, i);
        fila->setForeground(Grupo, Aspecto::atenuado());
        filas << fila;
    }
    m_lista->clear();
    m_lista->addTopLevelItems(filas);
    m_nada->setText(Traduce(u"Ninguna orden responde a «%1»."_s).arg(buscado));
    m_nada->setVisible(filas.isEmpty());
    m_lista->setCurrentItem(filas.value(0));
    dice();
}

/// Screen readers hear what is chosen, though the keyboard is in the field.
void PaletaDeOrdenes::dice()
{
    const QTreeWidgetItem *fila = m_lista->currentItem();
    m_campo->setAccessibleDescription(
        fila ? u"%1, %2, %3"_s.arg(fila->text(Titulo), fila->text(Grupo), fila->text(Tecla))
             : m_nada->text());
    anuncia(m_campo);
}

void PaletaDeOrdenes::elige()
{
    const QTreeWidgetItem *fila = m_lista->currentItem();
    if (!fila)
        return;
    const auto hace = m_ordenes[fila->data(Titulo, Qt::UserRole).toInt()].hace;
    close();
    Q_EMIT elegida(hace);
}

bool PaletaDeOrdenes::event(QEvent *suceso)
{
    if (suceso->type() == QEvent::WindowDeactivate)
        close();
    return QDialog::event(suceso);
}

bool PaletaDeOrdenes::eventFilter(QObject *objeto, QEvent *suceso)
{
    if (objeto != m_campo || suceso->type() != QEvent::KeyPress)
        return QDialog::eventFilter(objeto, suceso);
    switch (static_cast<QKeyEvent *>(suceso)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QCoreApplication::sendEvent(m_lista, suceso);
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        elige();
        return true;
    default:
        return QDialog::eventFilter(objeto, suceso);
    }
}

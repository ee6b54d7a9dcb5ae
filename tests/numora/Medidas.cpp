// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/numora/Medidas.h"

#include "shell/page/NavegadorPagina.h"

#include <QTextDocument>
#include <QtWidgets>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A field may hold more than it shows, as it scrolls; this much of it has to be seen.
constexpr int LetrasDeCampo = 12;

QString sinTeclas(const QString &texto)
{
    return QKeySequence::mnemonic(texto).isEmpty() ? texto : QString(texto).remove(u'&');
}

int anchoDe(const QWidget &control, const QString &texto)
{
    return control.fontMetrics().boundingRect(sinTeclas(texto)).width();
}

QString describe(const QSize &tamano)
{
    return u"%1x%2"_s.arg(tamano.width()).arg(tamano.height());
}

QString describe(const QRect &lugar)
{
    return describe(lugar.size()) + u"+%1+%2"_s.arg(lugar.x()).arg(lugar.y());
}

/// What Qt itself builds its controls of, and what no one has laid out.
bool esInterno(const QWidget &control)
{
    const QWidget *padre = control.parentWidget();
    return control.isWindow() || control.objectName().startsWith(u"qt_") ||
           control.inherits("QScrollBar") || control.inherits("QSplitterHandle") ||
           control.inherits("QTableCornerButton") || control.inherits("QMdiSubWindow") ||
           control.inherits("QSizeGrip") || control.inherits("QHeaderView") ||
           control.objectName().startsWith(u"Eje") ||
           (padre && (padre->inherits("QTabBar") || padre->inherits("QLineEdit") ||
                      padre->inherits("QAbstractSpinBox") || padre->inherits("QComboBox") ||
                      padre->inherits("QMenuBar") || padre->inherits("QMdiSubWindow") ||
                      padre->inherits("QMdiArea") || padre->inherits("QStatusBar")));
}

/// What scrolls holds more than it shows.
bool rueda(const QWidget *padre)
{
    const auto *area = qobject_cast<const QAbstractScrollArea *>(padre->parentWidget());
    return qobject_cast<const QAbstractScrollArea *>(padre) || (area && area->viewport() == padre);
}

class Inspeccion
{
public:
    explicit Inspeccion(const QWidget &ventana) : m_ventana(ventana) {}

    QStringList faltas()
    {
        mira(m_ventana);
        return m_faltas;
    }

private:
    void mira(const QWidget &padre)
    {
        QList<const QWidget *> hijos;
        for (const QObject *hijo : padre.children()) {
            const auto *control = qobject_cast<const QWidget *>(hijo);
            if (control && control->isVisible() && !control->isWindow())
                hijos << control;
        }
        for (const QWidget *hijo : std::as_const(hijos)) {
            if (!esInterno(*hijo)) {
                miraLugar(*hijo, padre);
                miraTamano(*hijo);
                miraTexto(*hijo);
            }
            mira(*hijo);
        }
        if (!rueda(&padre) && !qobject_cast<const QSplitter *>(&padre))
            miraSolapes(hijos);
    }

    void falta(const QWidget &control, const QString &que)
    {
        QString nombre = control.objectName();
        if (nombre.isEmpty())
            nombre = QString::fromLatin1(control.metaObject()->className()) + u" of "_s +
                     control.parentWidget()->objectName();
        m_faltas << nombre + u": "_s + que;
    }

    void miraLugar(const QWidget &control, const QWidget &padre)
    {
        if (!rueda(&padre) && !padre.rect().contains(control.geometry()))
            falta(control, u"sticks out of "_s + padre.objectName());
    }

    /// Two controls in one place; what has no text and no frame may lie behind others.
    void miraSolapes(const QList<const QWidget *> &hijos)
    {
        for (int i = 0; i < hijos.size(); ++i) {
            for (int j = 0; j < i; ++j) {
                if (!esInterno(*hijos[i]) && !esInterno(*hijos[j]) &&
                    hijos[i]->geometry().intersects(hijos[j]->geometry()))
                    falta(*hijos[i], u"lies over %1: %2, %3"_s.arg(hijos[j]->objectName(),
                                                                   describe(hijos[i]->geometry()),
                                                                   describe(hijos[j]->geometry())));
            }
        }
    }

    void miraTamano(const QWidget &control)
    {
        const auto *rotulo = qobject_cast<const QLabel *>(&control);
        if (rotulo && rotulo->text().isEmpty() && rotulo->pixmap(Qt::ReturnByValue).isNull())
            return;
        // What holds others is as large as it needs when they are; what wraps is asked for its
        // text.
        // A picture or plot shrinks with its place.
        const bool mirada = control.layout() || control.inherits("Dibujo") ||
                            control.inherits("ReproductorAVI") || control.inherits("Grafica") ||
                            control.inherits("QSplitter") || control.inherits("QStackedWidget") ||
                            (rotulo && rotulo->wordWrap());
        const QSize minimo =
            mirada ? QSize() : control.minimumSizeHint().boundedTo(control.maximumSize());
        const QSize tamano = control.size();
        if (tamano.isEmpty())
            falta(control, u"has no size"_s);
        else if (tamano.width() < minimo.width() || tamano.height() < minimo.height())
            falta(control, u"is %1, needs %2"_s.arg(describe(tamano), describe(minimo)));
    }

    void miraTexto(const QWidget &control)
    {
        if (const auto *rotulo = qobject_cast<const QLabel *>(&control))
            miraRotulo(*rotulo);
        else if (const auto *boton = qobject_cast<const QAbstractButton *>(&control))
            cabe(*boton, boton->text(), boton->sizeHint());
        else if (const auto *campo = qobject_cast<const QLineEdit *>(&control))
            miraCampo(*campo);
        else if (const auto *lista = qobject_cast<const QComboBox *>(&control))
            miraLista(*lista);
        else if (const auto *tira = qobject_cast<const QTabBar *>(&control))
            miraTira(*tira);
        else if (const auto *grupo = qobject_cast<const QGroupBox *>(&control))
            cabe(*grupo, grupo->title(), QSize(anchoDe(*grupo, grupo->title()), 0));
        else if (const auto *tabla = qobject_cast<const QTableView *>(&control))
            miraTabla(*tabla);
        else if (const auto *menu = qobject_cast<const QMenuBar *>(&control))
            cabe(*menu, u"menus"_s, QSize(menu->sizeHint().width(), 0));
    }

    void cabe(const QWidget &control, const QString &texto, const QSize &necesario)
    {
        const QSize tope = necesario.boundedTo(control.maximumSize());
        if (!texto.isEmpty() &&
            (control.width() < tope.width() || control.height() < tope.height()))
            falta(control, u"«%1» is cut: %2 of %3"_s.arg(texto, describe(control.size()),
                                                          describe(necesario)));
    }

    void miraRotulo(const QLabel &rotulo)
    {
        if (rotulo.text().isEmpty())
            return;
        if (rotulo.wordWrap())
            cabe(rotulo, rotulo.text(), QSize(0, rotulo.heightForWidth(rotulo.width())));
        else
            cabe(rotulo, rotulo.text(), rotulo.sizeHint());
    }

    /// A hint is read whole; of a number, at least its beginning.
    void miraCampo(const QLineEdit &campo)
    {
        QStyleOptionFrame opcion;
        opcion.initFrom(&campo);
        opcion.lineWidth = 1;
        const int dentro =
            campo.style()->subElementRect(QStyle::SE_LineEditContents, &opcion, &campo).width() - 4;
        const int trozo = campo.fontMetrics().averageCharWidth() * LetrasDeCampo;
        const bool vacio = campo.text().isEmpty();
        const int texto = anchoDe(campo, campo.displayText());
        const int necesario =
            vacio ? anchoDe(campo, campo.placeholderText()) : std::min(texto, trozo);
        if (dentro < necesario)
            falta(campo,
                  u"«%1» is cut: %2 of %3"_s.arg(vacio ? campo.placeholderText() : campo.text())
                      .arg(dentro)
                      .arg(necesario));
    }

    void miraLista(const QComboBox &lista)
    {
        QStyleOptionComboBox opcion;
        opcion.initFrom(&lista);
        const int dentro =
            lista.style()
                ->subControlRect(QStyle::CC_ComboBox, &opcion, QStyle::SC_ComboBoxEditField, &lista)
                .width();
        const int falta = anchoDe(lista, lista.currentText()) - dentro;
        cabe(lista, lista.currentText(), QSize(lista.width() + falta, 0));
    }

    /// A strip that is too long scrolls, but shows each caption whole, and the current one.
    void miraTira(const QTabBar &tira)
    {
        for (int i = 0; i < tira.count(); ++i) {
            if (tira.isTabVisible(i) && tira.tabRect(i).width() < anchoDe(tira, tira.tabText(i)))
                falta(tira, u"«%1» is cut"_s.arg(tira.tabText(i)));
        }
        if (!tira.rect().contains(tira.tabRect(tira.currentIndex())))
            falta(tira, u"«%1» is out of sight"_s.arg(tira.tabText(tira.currentIndex())));
    }

    void miraTabla(const QTableView &tabla)
    {
        if (!tabla.model())
            return;
        miraCabecera(tabla);
        const QAbstractItemView &vista = tabla;
        for (int c = 0; c < tabla.model()->columnCount(); ++c) {
            if (tabla.isColumnHidden(c))
                continue;
            const int ancho = tabla.columnWidth(c);
            if (tabla.columnViewportPosition(c) < tabla.viewport()->width() &&
                ancho > tabla.viewport()->width())
                falta(tabla, u"column %1 is wider than the grid"_s.arg(c));
            // Those of a sheet are as wide as its user has made them; its zoom shows the whole.
            const int filas = tabla.inherits("FormCalcRejilla") ? 0 : 8;
            for (int f = 0; f < std::min(tabla.model()->rowCount(), filas); ++f) {
                const QModelIndex celda = tabla.model()->index(f, c, tabla.rootIndex());
                const int necesario = vista.sizeHintForIndex(celda).width();
                // What is shortened in the middle is told whole by its tooltip, and worth reading.
                const int trozo = tabla.fontMetrics().averageCharWidth() * LetrasDeCampo;
                const bool acortada = tabla.textElideMode() == Qt::ElideMiddle && ancho >= trozo &&
                                      !celda.data(Qt::ToolTipRole).toString().isEmpty();
                const bool enLineas = tabla.rowHeight(f) >= 2 * tabla.fontMetrics().height();
                if (ancho < necesario && !acortada && !enLineas && tabla.columnSpan(f, c) == 1)
                    falta(tabla, u"cell %1,%2 «%3» is cut: %4 of %5"_s.arg(f)
                                     .arg(c)
                                     .arg(celda.data().toString())
                                     .arg(ancho)
                                     .arg(necesario));
            }
        }
    }

    void miraCabecera(const QTableView &tabla)
    {
        const QHeaderView &cabecera = *tabla.horizontalHeader();
        if (!cabecera.isVisible())
            return;
        for (int c = 0; c < cabecera.count(); ++c) {
            if (!cabecera.isSectionHidden(c) &&
                cabecera.sectionSize(c) < cabecera.sectionSizeHint(c))
                falta(tabla, u"header «%1» is cut"_s.arg(
                                 tabla.model()->headerData(c, Qt::Horizontal).toString()));
        }
    }

    const QWidget &m_ventana;
    QStringList m_faltas;
};

} // namespace

QStringList faltasDeMedida(const QWidget &ventana)
{
    return Inspeccion(ventana).faltas();
}

#pragma once

#include <QObject>

class CampoLargo;

/// Keeps a field as many lines high as its text takes on screen, at least `minimo` and at most
/// `maximo`, so that two digits do not stand in a box made for hundreds. Beyond, it scrolls. Works
/// anew when the text or the width changes. Lives as long as the field.
class LineasSegunTexto : public QObject
{
public:
    LineasSegunTexto(CampoLargo *campo, int minimo, int maximo);

    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void ajusta();

    CampoLargo *m_campo;
    int m_minimo;
    int m_maximo;
};

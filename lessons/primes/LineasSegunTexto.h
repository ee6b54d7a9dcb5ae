#pragma once

class CampoLargo;

/// Keeps a field as many lines high as its text takes on screen, at least `minimo` and at most
/// `maximo`, so that two digits do not stand in a box made for hundreds. Beyond, it scrolls.
void ponLineasSegunTexto(CampoLargo *campo, int minimo, int maximo);

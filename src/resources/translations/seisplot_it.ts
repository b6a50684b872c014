<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>CurveDisplay</name>
    <message>
        <source>Curve display</source>
        <translation>Visualizzazione curve</translation>
    </message>
    <message>
        <source>Read collection...</source>
        <translation>Leggi raccolta...</translation>
    </message>
    <message>
        <source>Modify collection...</source>
        <translation>Modifica raccolta...</translation>
    </message>
    <message>
        <source>Write to file...</source>
        <translation>Scrivi su file...</translation>
    </message>
    <message>
        <source>Max!</source>
        <translation>Max!</translation>
    </message>
    <message>
        <source>Min!</source>
        <translation>Min!</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punti</translation>
    </message>
    <message>
        <source>&lt;&lt;</source>
        <translation>&lt;&lt;</translation>
    </message>
    <message>
        <source>&gt;&gt;</source>
        <translation>&gt;&gt;</translation>
    </message>
    <message>
        <source>Sel</source>
        <translation>Sel</translation>
    </message>
    <message>
        <source>Unsel</source>
        <translation>Desel</translation>
    </message>
    <message>
        <source>!</source>
        <translation>!</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Title...</source>
        <translation>Titolo...</translation>
    </message>
    <message>
        <source>Axes...</source>
        <translation>Assi...</translation>
    </message>
    <message>
        <source>Data...</source>
        <translation>Dati...</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Curva</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Stampa...</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Swap axes!</source>
        <translation>Scambia assi!</translation>
    </message>
    <message>
        <source>(only for display purposes)</source>
        <translation>(solo per la visualizzazione)</translation>
    </message>
    <message>
        <source>Line thickness (mm/100)</source>
        <translation>Spessore linea (mm/100)</translation>
    </message>
    <message>
        <source>Display tick values</source>
        <translation>Mostra i valori delle tacche</translation>
    </message>
    <message>
        <source>DX</source>
        <translation>DX</translation>
    </message>
    <message>
        <source>Display X lines</source>
        <translation>Mostra linee X</translation>
    </message>
    <message>
        <source>DY</source>
        <translation>DY</translation>
    </message>
    <message>
        <source>Display Y lines</source>
        <translation>Mostra linee Y</translation>
    </message>
    <message>
        <source>Update!</source>
        <translation>Aggiorna!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>CurveMixing</name>
    <message>
        <source>Curve mixing operations</source>
        <translation>Operazioni di combinazione delle curve</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Variable name:</source>
        <translation>Nome variabile:</translation>
    </message>
    <message>
        <source>&lt;--</source>
        <translation>&lt;--</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Delete curve!</source>
        <translation>Elimina curva!</translation>
    </message>
    <message>
        <source>Name of the new curve</source>
        <translation>Nome della nuova curva</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formula</translation>
    </message>
    <message>
        <source>=</source>
        <translation>=</translation>
    </message>
    <message>
        <source>Example: DriftX_Column123 =  (A - B) </source>
        <translation>Esempio: DriftX_Column123 =  (A - B) </translation>
    </message>
    <message>
        <source>Operations referring to  X</source>
        <translation>Operazioni riferite a  X</translation>
    </message>
    <message>
        <source>Operations referring to Y</source>
        <translation>Operazioni riferite a Y</translation>
    </message>
    <message>
        <source>&quot;Operations referring to  X&quot; is used when the ordinates Y are kept equal, and the Xs are modified</source>
        <translation>&quot;Operazioni riferite a  X&quot; si usa quando le ordinate Y restano uguali e si modificano le X</translation>
    </message>
    <message>
        <source>New curve dimension</source>
        <translation>Dimensione della nuova curva</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Surface</source>
        <translation>Superficie</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Length to the fourth</source>
        <translation>Lunghezza alla quarta</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>Forza</translation>
    </message>
    <message>
        <source>Moment</source>
        <translation>Momento</translation>
    </message>
    <message>
        <source>Stress</source>
        <translation>Tensione</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Pure number</source>
        <translation>Numero puro</translation>
    </message>
    <message>
        <source>Execute!</source>
        <translation>Esegui!</translation>
    </message>
    <message>
        <source>B=B(A)!</source>
        <translation>B=B(A)!</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GetAnDi</name>
    <message>
        <source>Side by angle and length</source>
        <translation>Lato per angolo e lunghezza</translation>
    </message>
    <message>
        <source>Angle (degrees)</source>
        <translation>Angolo (gradi)</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Angles are measured from the x axis, counter-clockwise.</source>
        <translation>Gli angoli sono misurati dall&apos;asse x, in senso antiorario.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GetAnDx</name>
    <message>
        <source>Side by angle and dx</source>
        <translation>Lato per angolo e dx</translation>
    </message>
    <message>
        <source>Angle (degrees)</source>
        <translation>Angolo (gradi)</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>Angles are measured from the x axis, counter-clockwise.</source>
        <translation>Gli angoli sono misurati dall&apos;asse x, in senso antiorario.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GetAnDy</name>
    <message>
        <source>Side by angle and dy</source>
        <translation>Lato per angolo e dy</translation>
    </message>
    <message>
        <source>Angle (degrees)</source>
        <translation>Angolo (gradi)</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>Angles are measured from the x axis, counter-clockwise.</source>
        <translation>Gli angoli sono misurati dall&apos;asse x, in senso antiorario.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GetArc1</name>
    <message>
        <source>Circular arc</source>
        <translation>Arco di circonferenza</translation>
    </message>
    <message>
        <source>Centre x</source>
        <translation>Centro x</translation>
    </message>
    <message>
        <source>Centre y</source>
        <translation>Centro y</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Raggio</translation>
    </message>
    <message>
        <source>Start angle (degrees)</source>
        <translation>Angolo iniziale (gradi)</translation>
    </message>
    <message>
        <source>End angle (degrees)</source>
        <translation>Angolo finale (gradi)</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segmenti</translation>
    </message>
    <message>
        <source>Angles are measured from the x axis, counter-clockwise.</source>
        <translation>Gli angoli sono misurati dall&apos;asse x, in senso antiorario.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GetDxDy</name>
    <message>
        <source>Side by its projections</source>
        <translation>Lato per proiezioni</translation>
    </message>
    <message>
        <source>dx</source>
        <translation>dx</translation>
    </message>
    <message>
        <source>dy</source>
        <translation>dy</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>GetXY</name>
    <message>
        <source>Point coordinates</source>
        <translation>Coordinate del punto</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
</context>
</TS>

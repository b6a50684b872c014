<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="it_IT">
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
        <translation>Gli angoli sono misurati dall'asse x, in senso antiorario.</translation>
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
        <translation>Gli angoli sono misurati dall'asse x, in senso antiorario.</translation>
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
        <translation>Gli angoli sono misurati dall'asse x, in senso antiorario.</translation>
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
        <translation>Gli angoli sono misurati dall'asse x, in senso antiorario.</translation>
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
    <name>GetPolygon</name>
    <message>
        <source>Closed polygon input</source>
        <translation>Inserimento di un poligono chiuso</translation>
    </message>
    <message>
        <source>Green point is that currently selected</source>
        <translation>Il punto verde è quello attualmente selezionato</translation>
    </message>
    <message>
        <source>Red point is the last added</source>
        <translation>Il punto rosso è l'ultimo aggiunto</translation>
    </message>
    <message>
        <source>Polygon is drawn closed depending on last input point.</source>
        <translation>Il poligono è disegnato chiuso in funzione dell'ultimo punto inserito.</translation>
    </message>
    <message>
        <source>New side</source>
        <translation>Nuovo lato</translation>
    </message>
    <message>
        <source>Side by dx and dy</source>
        <translation>Lato per dx e dy</translation>
    </message>
    <message>
        <source>Side by angle and distance</source>
        <translation>Lato per angolo e distanza</translation>
    </message>
    <message>
        <source>Side by angle and dx</source>
        <translation>Lato per angolo e dx</translation>
    </message>
    <message>
        <source>Side by angle and dy</source>
        <translation>Lato per angolo e dy</translation>
    </message>
    <message>
        <source>Circular arc</source>
        <translation>Arco di circonferenza</translation>
    </message>
    <message>
        <source>First point...</source>
        <translation>Primo punto...</translation>
    </message>
    <message>
        <source>Modify points</source>
        <translation>Modifica punti</translation>
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
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>Modify point...</source>
        <translation>Modifica punto...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Adding of preset polygons</source>
        <translation>Aggiunta di poligoni predefiniti</translation>
    </message>
    <message>
        <source>Special polygons...</source>
        <translation>Poligoni speciali...</translation>
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
    <name>GetSpecialPoly</name>
    <message>
        <source>Special polygons input</source>
        <translation>Inserimento di poligoni speciali</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Rectangle having center in (A,B), base C, height D</source>
        <translation>Rettangolo con centro in (A,B), base C, altezza D</translation>
    </message>
    <message>
        <source>Circle with center in (A, B), radius C, number of intervals equal to D</source>
        <translation>Cerchio con centro in (A, B), raggio C, numero di intervalli pari a D</translation>
    </message>
    <message>
        <source>Half circle having center in (A, B), radius C, number of intervals equal to D and angle of diameter over horizontal equal to E (degrees)</source>
        <translation>Semicerchio con centro in (A, B), raggio C, numero di intervalli pari a D e angolo del diametro sull'orizzontale pari a E (gradi)</translation>
    </message>
    <message>
        <source>Regular polygon having center in (A, B), radius equal to C, number of sides equal to D, angle over horizontal of first vertex equal to E (degrees)</source>
        <translation>Poligono regolare con centro in (A, B), raggio pari a C, numero di lati pari a D, angolo sull'orizzontale del primo vertice pari a E (gradi)</translation>
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

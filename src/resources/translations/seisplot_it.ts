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
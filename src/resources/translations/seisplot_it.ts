<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>AccData</name>
    <message>
        <source>Accelerogram details</source>
        <translation>Dettagli dell&apos;accelerogramma</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificativo</translation>
    </message>
    <message>
        <source>M,W (magnitude)</source>
        <translation>M,W (magnitudo)</translation>
    </message>
    <message>
        <source>M,L (magnitude)</source>
        <translation>M,L (magnitudo)</translation>
    </message>
    <message>
        <source>Epicentral distance (km)</source>
        <translation>Distanza epicentrale (km)</translation>
    </message>
    <message>
        <source>Hypocentral depth (km)</source>
        <translation>Profondità ipocentrale (km)</translation>
    </message>
    <message>
        <source>Strike (deg)</source>
        <translation>Direzione (gradi)</translation>
    </message>
    <message>
        <source>Dip (deg)</source>
        <translation>Inclinazione (gradi)</translation>
    </message>
    <message>
        <source>Rake (deg)</source>
        <translation>Angolo di slip (gradi)</translation>
    </message>
    <message>
        <source>Latitude (deg)</source>
        <translation>Latitudine (gradi)</translation>
    </message>
    <message>
        <source>Longitude (deg)</source>
        <translation>Longitudine (gradi)</translation>
    </message>
    <message>
        <source>Angle relative to WE (deg)</source>
        <translation>Angolo rispetto a WE (gradi)</translation>
    </message>
    <message>
        <source> Backazimuth angle (deg)</source>
        <translation> Angolo di backazimuth (gradi)</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Natural</source>
        <translation>Naturale</translation>
    </message>
    <message>
        <source>Synthetic</source>
        <translation>Sintetico</translation>
    </message>
    <message>
        <source>NDSHA</source>
        <translation>NDSHA</translation>
    </message>
    <message>
        <source>PSHA</source>
        <translation>PSHA</translation>
    </message>
    <message>
        <source>Z dir</source>
        <translation>Dir. Z</translation>
    </message>
    <message>
        <source>Accelerogram data</source>
        <translation>Dati dell&apos;accelerogramma</translation>
    </message>
    <message>
        <source>Event ID</source>
        <translation>ID dell&apos;evento</translation>
    </message>
    <message>
        <source>Event Date</source>
        <translation>Data dell&apos;evento</translation>
    </message>
    <message>
        <source>Event Time</source>
        <translation>Ora dell&apos;evento</translation>
    </message>
    <message>
        <source>User data</source>
        <translation>Dati utente</translation>
    </message>
    <message>
        <source>User1</source>
        <translation>Utente1</translation>
    </message>
    <message>
        <source>User2</source>
        <translation>Utente2</translation>
    </message>
    <message>
        <source>User3</source>
        <translation>Utente3</translation>
    </message>
    <message>
        <source>User4</source>
        <translation>Utente4</translation>
    </message>
    <message>
        <source>User5</source>
        <translation>Utente5</translation>
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
    <name>EditSpectra</name>
    <message>
        <source>Spectra management</source>
        <translation>Gestione spettri</translation>
    </message>
    <message>
        <source>click to enlarge</source>
        <translation>clic per ingrandire</translation>
    </message>
    <message>
        <source>behavior factor</source>
        <translation>fattore di struttura</translation>
    </message>
    <message>
        <source>critical damping</source>
        <translation>smorzamento critico</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiorna</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>Fattore di scala</translation>
    </message>
    <message>
        <source>Apply!</source>
        <translation>Applica!</translation>
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
    <name>GetTimeCurve</name>
    <message>
        <source>Function of Time</source>
        <translation>Funzione del tempo</translation>
    </message>
    <message>
        <source>Impulse</source>
        <translation>Impulso</translation>
    </message>
    <message>
        <source>T1</source>
        <translation>T1</translation>
    </message>
    <message>
        <source>dT</source>
        <translation>dT</translation>
    </message>
    <message>
        <source>V1</source>
        <translation>V1</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Gradino</translation>
    </message>
    <message>
        <source>Limited Step</source>
        <translation>Gradino limitato</translation>
    </message>
    <message>
        <source>T2</source>
        <translation>T2</translation>
    </message>
    <message>
        <source>Ramp</source>
        <translation>Rampa</translation>
    </message>
    <message>
        <source>Trapezoid</source>
        <translation>Trapezio</translation>
    </message>
    <message>
        <source>T3</source>
        <translation>T3</translation>
    </message>
    <message>
        <source>T4</source>
        <translation>T4</translation>
    </message>
    <message>
        <source>Sinus   f= (*)</source>
        <translation>Seno    f= (*)</translation>
    </message>
    <message>
        <source>T</source>
        <translation>T</translation>
    </message>
    <message>
        <source>fi</source>
        <translation>fi</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Cosinus f=(**)</source>
        <translation>Coseno f=(**)</translation>
    </message>
    <message>
        <source>Generic</source>
        <translation>Generica</translation>
    </message>
    <message>
        <source>Add from file...</source>
        <translation>Aggiungi da file...</translation>
    </message>
    <message>
        <source>Duration: from t=t to t=</source>
        <translation>Durata: da t=t a t=</translation>
    </message>
    <message>
        <source>Update!</source>
        <translation>Aggiorna!</translation>
    </message>
    <message>
        <source>V1 is a pure number, usually 1. fi is in radians. Tj &gt; Ti   if    j &gt; i.</source>
        <translation>V1 è un numero puro, di solito 1. fi è in radianti. Tj &gt; Ti   se    j &gt; i.</translation>
    </message>
    <message>
        <source>(*)  (1+ At) sin[2pi t  /T(1+Bt)   +fi]</source>
        <translation>(*)  (1+ At) sin[2pi t  /T(1+Bt)   +fi]</translation>
    </message>
    <message>
        <source>(**)  (1+ At) cos[2pi t /T(1+Bt)   +fi]</source>
        <translation>(**)  (1+ At) cos[2pi t /T(1+Bt)   +fi]</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
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
<context>
    <name>ManageAccelerograms</name>
    <message>
        <source>Accelerograms Management</source>
        <translation>Gestione accelerogrammi</translation>
    </message>
    <message>
        <source>All the accelerograms</source>
        <translation>Tutti gli accelerogrammi</translation>
    </message>
    <message>
        <source>Remove!</source>
        <translation>Elimina!</translation>
    </message>
    <message>
        <source>Save...</source>
        <translation>Salva...</translation>
    </message>
    <message>
        <source>Add from File...</source>
        <translation>Aggiungi da file...</translation>
    </message>
    <message>
        <source>Add from set...</source>
        <translation>Aggiungi da archivio...</translation>
    </message>
    <message>
        <source>Add many from files...</source>
        <translation>Aggiungi molti da file...</translation>
    </message>
    <message>
        <source>click to enlarge</source>
        <translation>clic per ingrandire</translation>
    </message>
    <message>
        <source>Selected accelerogram</source>
        <translation>Accelerogramma selezionato</translation>
    </message>
    <message>
        <source>PGA (g)</source>
        <translation>PGA (g)</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Durata (s)</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Rename!</source>
        <translation>Rinomina!</translation>
    </message>
    <message>
        <source>Explanation</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Update!</source>
        <translation>Aggiorna!</translation>
    </message>
    <message>
        <source>Scale factor</source>
        <translation>Fattore di scala</translation>
    </message>
    <message>
        <source>Scale!</source>
        <translation>Scala!</translation>
    </message>
    <message>
        <source>Duplicate!</source>
        <translation>Duplica!</translation>
    </message>
    <message>
        <source>Info...</source>
        <translation>Info...</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Relazione...</translation>
    </message>
    <message>
        <source>Response spectra</source>
        <translation>Spettri di risposta</translation>
    </message>
    <message>
        <source>Last period (s)</source>
        <translation>Ultimo periodo (s)</translation>
    </message>
    <message>
        <source>Period step (s)</source>
        <translation>Passo del periodo (s)</translation>
    </message>
    <message>
        <source>Largest damping</source>
        <translation>Smorzamento massimo</translation>
    </message>
    <message>
        <source>Damping step</source>
        <translation>Passo dello smorzamento</translation>
    </message>
    <message>
        <source>Acceleration...</source>
        <translation>Accelerazione...</translation>
    </message>
    <message>
        <source>Displacement...</source>
        <translation>Spostamento...</translation>
    </message>
    <message>
        <source>ADS...</source>
        <translation>ADS...</translation>
    </message>
    <message>
        <source>Sinusoidal accelerograms with varying period  (Asin(wt))  w=2pi/T</source>
        <translation>Accelerogrammi sinusoidali a periodo variabile  (Asin(wt))  w=2pi/T</translation>
    </message>
    <message>
        <source>Number of accel</source>
        <translation>Numero di accel.</translation>
    </message>
    <message>
        <source>Period interval DT, T=i *DT</source>
        <translation>Intervallo di periodo DT, T=i *DT</translation>
    </message>
    <message>
        <source>Duration: N Periods</source>
        <translation>Durata: N periodi</translation>
    </message>
    <message>
        <source>Number of Points/Period</source>
        <translation>Numero di punti/periodo</translation>
    </message>
    <message>
        <source>A=PGA(g)</source>
        <translation>A=PGA(g)</translation>
    </message>
    <message>
        <source>Add!</source>
        <translation>Aggiungi!</translation>
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
    <name>ManageSpectra</name>
    <message>
        <source>Envelope spectrum</source>
        <translation>Spettro di inviluppo</translation>
    </message>
    <message>
        <source>Accelerograms</source>
        <translation>Accelerogrammi</translation>
    </message>
    <message>
        <source>All!</source>
        <translation>Tutti!</translation>
    </message>
    <message>
        <source>None!</source>
        <translation>Nessuno!</translation>
    </message>
    <message>
        <source>1, 4, 7, ....</source>
        <translation>1, 4, 7, ....</translation>
    </message>
    <message>
        <source>2, 5, 8, ....</source>
        <translation>2, 5, 8, ....</translation>
    </message>
    <message>
        <source>3, 6, 9, ....</source>
        <translation>3, 6, 9, ....</translation>
    </message>
    <message>
        <source> 1,2, 4,5, 7,8...</source>
        <translation> 1,2, 4,5, 7,8...</translation>
    </message>
    <message>
        <source>PGA (g)</source>
        <translation>PGA (g)</translation>
    </message>
    <message>
        <source>Duration (s)</source>
        <translation>Durata (s)</translation>
    </message>
    <message>
        <source>Info...</source>
        <translation>Info...</translation>
    </message>
    <message>
        <source>Modes</source>
        <translation>Modi</translation>
    </message>
    <message>
        <source>Periods</source>
        <translation>Periodi</translation>
    </message>
    <message>
        <source>Use only the selected natural periods of the structure</source>
        <translation>Usa solo i periodi propri selezionati della struttura</translation>
    </message>
    <message>
        <source>Use all periods up to</source>
        <translation>Usa tutti i periodi fino a</translation>
    </message>
    <message>
        <source>seconds with step</source>
        <translation>secondi con passo</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message>
        <source>Envelope</source>
        <translation>Inviluppo</translation>
    </message>
    <message>
        <source>Complete envelope</source>
        <translation>Inviluppo completo</translation>
    </message>
    <message>
        <source>Use</source>
        <translation>Usa</translation>
    </message>
    <message>
        <source>percentile</source>
        <translation>percentile</translation>
    </message>
    <message>
        <source>(using a percentile does not imply any probability)</source>
        <translation>(l&apos;uso di un percentile non implica alcuna probabilità)</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Segnali</translation>
    </message>
    <message>
        <source>Critical damping</source>
        <translation>Smorzamento critico</translation>
    </message>
    <message>
        <source>Generate and add to list!</source>
        <translation>Genera e aggiungi alla lista!</translation>
    </message>
    <message>
        <source>Track last run...</source>
        <translation>Traccia dell&apos;ultimo calcolo...</translation>
    </message>
    <message>
        <source>click to enlarge</source>
        <translation>clic per ingrandire</translation>
    </message>
    <message>
        <source>Spectra</source>
        <translation>Spettri</translation>
    </message>
    <message>
        <source>Peak (g)</source>
        <translation>Picco (g)</translation>
    </message>
    <message>
        <source>Period of the peak (s)</source>
        <translation>Periodo del picco (s)</translation>
    </message>
    <message>
        <source>Damping</source>
        <translation>Smorzamento</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Change name!</source>
        <translation>Cambia nome!</translation>
    </message>
    <message>
        <source>EC8 soil classes</source>
        <translation>Classi di suolo EC8</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Elimina</translation>
    </message>
    <message>
        <source>Remove all!</source>
        <translation>Elimina tutti!</translation>
    </message>
    <message>
        <source>Report...</source>
        <translation>Relazione...</translation>
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

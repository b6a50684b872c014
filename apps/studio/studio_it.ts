<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>seisplot::studio::MainWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;New project</source>
        <translation>&amp;Nuovo progetto</translation>
    </message>
    <message>
        <source>&amp;Open project...</source>
        <translation>&amp;Apri progetto...</translation>
    </message>
    <message>
        <source>&amp;Save project</source>
        <translation>&amp;Salva progetto</translation>
    </message>
    <message>
        <source>Save project &amp;as...</source>
        <translation>Salva progetto &amp;con nome...</translation>
    </message>
    <message>
        <source>&amp;Import record files...</source>
        <translation>&amp;Importa file di registrazioni...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Add &amp;point...</source>
        <translation>Aggiungi &amp;punto...</translation>
    </message>
    <message>
        <source>Add side by &amp;projections...</source>
        <translation>Aggiungi lato per &amp;proiezioni...</translation>
    </message>
    <message>
        <source>Add side by angle and &amp;length...</source>
        <translation>Aggiungi lato per angolo e &amp;lunghezza...</translation>
    </message>
    <message>
        <source>Add side by angle and d&amp;x...</source>
        <translation>Aggiungi lato per angolo e d&amp;x...</translation>
    </message>
    <message>
        <source>Add side by angle and d&amp;y...</source>
        <translation>Aggiungi lato per angolo e d&amp;y...</translation>
    </message>
    <message>
        <source>Add &amp;arc...</source>
        <translation>Aggiungi &amp;arco...</translation>
    </message>
    <message>
        <source>&amp;Clear the polygon</source>
        <translation>&amp;Cancella il poligono</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>&amp;Impostazioni</translation>
    </message>
    <message>
        <source>&amp;Units...</source>
        <translation>&amp;Unità...</translation>
    </message>
    <message>
        <source>Plot &amp;title font...</source>
        <translation>Carattere del &amp;titolo...</translation>
    </message>
    <message>
        <source>Plot &amp;axis font...</source>
        <translation>Carattere degli &amp;assi...</translation>
    </message>
    <message>
        <source>Plot &amp;label font...</source>
        <translation>Carattere delle &amp;etichette...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>untitled</source>
        <translation>senza nome</translation>
    </message>
    <message>
        <source>%1 - seisplot studio</source>
        <translation>%1 - seisplot studio</translation>
    </message>
    <message>
        <source>Records (%1)</source>
        <translation>Registrazioni (%1)</translation>
    </message>
    <message>
        <source>Spectra (%1)</source>
        <translation>Spettri (%1)</translation>
    </message>
    <message>
        <source>Curves (%1)</source>
        <translation>Curve (%1)</translation>
    </message>
    <message>
        <source>Polylines (%1)</source>
        <translation>Polilinee (%1)</translation>
    </message>
    <message>
        <source>Polygon (%1 vertices)</source>
        <translation>Poligono (%1 vertici)</translation>
    </message>
    <message>
        <source>Units: %1, %2, %3</source>
        <translation>Unità: %1, %2, %3</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>Impossibile aprire %1: %2</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>Aperto %1</translation>
    </message>
    <message>
        <source>Cannot save %1: %2</source>
        <translation>Impossibile salvare %1: %2</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Salvato %1</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Apri progetto</translation>
    </message>
    <message>
        <source>seisplot projects (*.spj)</source>
        <translation>Progetti seisplot (*.spj)</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <source>About seisplot studio</source>
        <translation>Informazioni su seisplot studio</translation>
    </message>
    <message>
        <source>&lt;b&gt;seisplot studio&lt;/b&gt;&lt;p&gt;%1&lt;/p&gt;&lt;p&gt;The desktop application that holds a project of records, spectra, curves and a polygon, and opens the library&apos;s dialogs on it.&lt;/p&gt;</source>
        <translation>&lt;b&gt;seisplot studio&lt;/b&gt;&lt;p&gt;%1&lt;/p&gt;&lt;p&gt;L&apos;applicazione desktop che contiene un progetto di registrazioni, spettri, curve e un poligono, e vi apre le finestre di dialogo della libreria.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&amp;Curves</source>
        <translation>&amp;Curve</translation>
    </message>
    <message>
        <source>Copy the selected &amp;record or spectrum to the curves</source>
        <translation>Copia la &amp;registrazione o lo spettro selezionato tra le curve</translation>
    </message>
    <message>
        <source>Curve &amp;display...</source>
        <translation>&amp;Visualizzazione curve...</translation>
    </message>
    <message>
        <source>Curve &amp;mixing...</source>
        <translation>&amp;Combinazione curve...</translation>
    </message>
    <message>
        <source>&amp;Polyline display...</source>
        <translation>Visualizzazione &amp;polilinee...</translation>
    </message>
    <message>
        <source>Po&amp;lyline mixing...</source>
        <translation>Combinazione po&amp;lilinee...</translation>
    </message>
    <message>
        <source>Select a record or a spectrum first</source>
        <translation>Selezionare prima una registrazione o uno spettro</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>&amp;Registrazioni</translation>
    </message>
    <message>
        <source>&amp;Manage records...</source>
        <translation>&amp;Gestione registrazioni...</translation>
    </message>
    <message>
        <source>&amp;Function of time...</source>
        <translation>&amp;Funzione del tempo...</translation>
    </message>
    <message>
        <source>Selected record&apos;s &amp;details...</source>
        <translation>&amp;Dettagli della registrazione selezionata...</translation>
    </message>
    <message>
        <source>Select a record first</source>
        <translation>Selezionare prima una registrazione</translation>
    </message>
    <message>
        <source>&amp;Polygon</source>
        <translation>&amp;Poligono</translation>
    </message>
    <message>
        <source>Closed polygon &amp;input...</source>
        <translation>&amp;Inserimento del poligono chiuso...</translation>
    </message>
    <message>
        <source>A vertical side has no dx.</source>
        <translation>Un lato verticale non ha dx.</translation>
    </message>
    <message>
        <source>A horizontal side has no dy.</source>
        <translation>Un lato orizzontale non ha dy.</translation>
    </message>
    <message>
        <source>&amp;Open a curve file...</source>
        <translation>&amp;Apri un file di curve...</translation>
    </message>
    <message>
        <source>Open a curve file</source>
        <translation>Apri un file di curve</translation>
    </message>
    <message>
        <source>Curve collections (*.pcc *.pmc)</source>
        <translation>Raccolte di curve (*.pcc *.pmc)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Structure in GDI and OpenGL...</source>
        <translation>&amp;Struttura in GDI e OpenGL...</translation>
    </message>
    <message>
        <source>&amp;Spectra</source>
        <translation>&amp;Spettri</translation>
    </message>
    <message>
        <source>Spectrum &amp;editor...</source>
        <translation>&amp;Editor degli spettri...</translation>
    </message>
    <message>
        <source>E&amp;nvelope spectra...</source>
        <translation>Spettri di i&amp;nviluppo...</translation>
    </message>
    <message>
        <source>The structure&apos;s modes</source>
        <translation>I modi della struttura</translation>
    </message>
    <message>
        <source>Modes of a structure (*.modes *.txt);;All files (*)</source>
        <translation>Modi di una struttura (*.modes *.txt);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Import a s&amp;pectra archive...</source>
        <translation>Importa un archivio di s&amp;pettri...</translation>
    </message>
    <message>
        <source>Import a spectra archive</source>
        <translation>Importa un archivio di spettri</translation>
    </message>
    <message>
        <source>Spectra archives (*.spc);;All files (*)</source>
        <translation>Archivi di spettri (*.spc);;Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>seisplot::studio::StructureWindow</name>
    <message>
        <source>Structure: GDI and OpenGL</source>
        <translation>Struttura: GDI e OpenGL</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>MakeTexts</name>
    <message>
        <source>Reading the photos</source>
        <translation>Lettura delle foto</translation>
    </message>
    <message>
        <source>Developing RAW files</source>
        <translation>Sviluppo dei file RAW</translation>
    </message>
    <message>
        <source>Looking for details in the photos</source>
        <translation>Ricerca di dettagli nelle foto</translation>
    </message>
    <message>
        <source>Comparing neighbouring photos</source>
        <translation>Confronto delle foto vicine</translation>
    </message>
    <message>
        <source>Putting the photos in their places</source>
        <translation>Disposizione delle foto al loro posto</translation>
    </message>
    <message>
        <source>Comparing the light of the photos</source>
        <translation>Confronto della luce delle foto</translation>
    </message>
    <message>
        <source>Joining brackets</source>
        <translation>Unione dei bracketing</translation>
    </message>
    <message>
        <source>Bending the photos into shape</source>
        <translation>Deformazione delle foto</translation>
    </message>
    <message>
        <source>Blending the photos</source>
        <translation>Raccordo delle foto</translation>
    </message>
    <message>
        <source>Fusing brackets</source>
        <translation>Fusione dei bracketing</translation>
    </message>
    <message>
        <source>Writing the picture</source>
        <translation>Scrittura dell&apos;immagine</translation>
    </message>
    <message>
        <source>Making the page</source>
        <translation>Creazione della pagina</translation>
    </message>
    <message>
        <source>Cutting tiles to zoom into</source>
        <translation>Ritaglio dei tasselli per lo zoom</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>%1 (step %2 of %3)</source>
        <translation>%1 (passaggio %2 di %3)</translation>
    </message>
    <message>
        <source>%1 x %2 in at %3 dpi</source>
        <translation>%1 x %2 pollici a %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 cm at %3 dpi</source>
        <translation>%1 x %2 cm a %3 dpi</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most (%3); takes up to %4 of the disk and %5 of memory.</source>
        <translation>Al massimo %1 x %2 pixel (%3); occupa fino a %4 su disco e %5 di memoria.</translation>
    </message>
</context>
<context>
    <name>PanoHost</name>
    <message>
        <source>%1 s left</source>
        <translation>ancora %1 s</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <translation>ancora %1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min left</source>
        <translation>ancora %1 h %2 min</translation>
    </message>
</context>
<context>
    <name>PanoHost::AboutBox</name>
    <message>
        <source>About panohost</source>
        <translation>Informazioni su panohost</translation>
    </message>
    <message>
        <source>Licences</source>
        <translation>Licenze</translation>
    </message>
    <message>
        <source>panohost as a program: GPL-3.0-or-later; its source: GPL-2.0-or-later.</source>
        <translation>panohost come programma: GPL-3.0-or-later; il suo codice sorgente: GPL-2.0-or-later.</translation>
    </message>
    <message>
        <source>The plug-in library XPanoHead: MIT.</source>
        <translation>La libreria di plug-in XPanoHead: MIT.</translation>
    </message>
    <message>
        <source>They stand on:</source>
        <translation>Si basano su:</translation>
    </message>
    <message>
        <source>&amp;Licences:</source>
        <translation>&amp;Licenze:</translation>
    </message>
</context>
<context>
    <name>PanoHost::ChoicePage</name>
    <message>
        <source>Needs photos only</source>
        <translation>Richiede solo le foto</translation>
    </message>
    <message>
        <source>Needs *.%1 record and photos</source>
        <translation>Richiede il file di ripresa *.%1 e le foto</translation>
    </message>
    <message>
        <source>%1 %2 by %3</source>
        <translation>%1 %2 di %3</translation>
    </message>
    <message>
        <source>Which head took the photos?</source>
        <translation>Con quale testa sono state scattate le foto?</translation>
    </message>
    <message>
        <source>Choose the head, or drop its record and the photos onto this window.</source>
        <translation>Scegliere la testa, o trascinare il suo file di ripresa e le foto su questa finestra.</translation>
    </message>
    <message>
        <source>Heads</source>
        <translation>Teste</translation>
    </message>
    <message>
        <source>&amp;Head:</source>
        <translation>&amp;Testa:</translation>
    </message>
    <message>
        <source>%1 record with %2 shots</source>
        <translation>file di ripresa %1 con %2 scatti</translation>
    </message>
    <message>
        <source>%1, which no head can read</source>
        <translation>%1, che nessuna testa può leggere</translation>
    </message>
    <message>
        <source>one photo</source>
        <translation>una foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 foto</translation>
    </message>
    <message>
        <source>Looking at the files</source>
        <translation>Esame dei file</translation>
    </message>
    <message>
        <source>Next waits for the head that took the photos.</source>
        <translation>Per proseguire, scegliere la testa che ha scattato le foto.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ElidedLabel</name>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
</context>
<context>
    <name>PanoHost::FileDrop</name>
    <message>
        <source>Drop the files here</source>
        <translation>Rilasciare i file qui</translation>
    </message>
</context>
<context>
    <name>PanoHost::HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferenze...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>&amp;Informazioni su panohost</translation>
    </message>
</context>
<context>
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Importazione di un panorama</translation>
    </message>
    <message>
        <source>&amp;Another import</source>
        <translation>&amp;Un&apos;altra importazione</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Non eseguito</translation>
    </message>
    <message>
        <source>Files not taken</source>
        <translation>File non accettati</translation>
    </message>
    <message>
        <source>Neither records nor photos are among these files.</source>
        <translation>Tra questi file non ci sono né file di ripresa né foto.</translation>
    </message>
    <message>
        <source>The name of a photo holds a double quote or a line end, which file dialogs cannot take. Rename it, or use &quot;panohost import&quot; on the command line.</source>
        <translation>Il nome di una foto contiene virgolette doppie o un&apos;interruzione di riga, che le finestre di dialogo dei file non accettano. Rinominarla, o usare «panohost import» dalla riga di comando.</translation>
    </message>
    <message>
        <source>Close the window?</source>
        <translation>Chiudere la finestra?</translation>
    </message>
    <message>
        <source>The panorama is still being made. What is finished of it is kept: made again, it goes on from there.</source>
        <translation>La creazione del panorama è ancora in corso. Ciò che è terminato viene conservato: una nuova creazione riprende da lì.</translation>
    </message>
    <message>
        <source>The panorama has not been saved.</source>
        <translation>Il panorama non è stato salvato.</translation>
    </message>
    <message>
        <source>The photos and options of this page will be forgotten.</source>
        <translation>Le foto e le opzioni di questa pagina andranno perse.</translation>
    </message>
    <message>
        <source>A step has failed</source>
        <translation>Un passaggio non è riuscito</translation>
    </message>
    <message>
        <source>This page could not do what you asked: %1. Your files are as they were. Try again, or go back and choose fewer files.</source>
        <translation>Questa pagina non è riuscita a fare quanto richiesto: %1. I file sono rimasti come erano. Riprovare, o tornare indietro e scegliere meno file.</translation>
    </message>
    <message>
        <source>Choose the head that took the photos, then Next. You can also drop the head&apos;s record and the photos, or the folder that holds them, onto this window.</source>
        <translation>Scegliere la testa che ha scattato le foto, poi «Successivo». Si possono anche trascinare su questa finestra il file di ripresa della testa e le foto, o la cartella che li contiene.</translation>
    </message>
    <message>
        <source>Say where the panorama goes and press Make panorama. It can be stopped at any time: what is finished is kept, and made again it goes on from there.</source>
        <translation>Indicare dove salvare il panorama e premere «Crea panorama». La creazione si può interrompere in qualsiasi momento: ciò che è terminato viene conservato, e una nuova creazione riprende da lì.</translation>
    </message>
    <message>
        <source>Next makes the panorama here. Or save the project and open it in Hugin, or save the description as JSON. Back returns to the import page; its photos and options are kept.</source>
        <translation>«Successivo» crea qui il panorama. Oppure si può salvare il progetto e aprirlo in Hugin, o salvare la descrizione come JSON. «Precedente» torna alla pagina di importazione; le sue foto e opzioni vengono mantenute.</translation>
    </message>
    <message>
        <source>Choose the head&apos;s record and all its photos. Next is enabled when every photo has been read and their number is that of the record. Red text says what does not fit; the line below all says why, and its buttons put it right.</source>
        <translation>Scegliere il file di ripresa della testa e tutte le sue foto. «Successivo» si attiva quando tutte le foto sono state lette e il loro numero è quello del file di ripresa. Il testo in rosso indica ciò che non corrisponde; la riga in basso spiega perché, e i suoi pulsanti lo correggono.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakePage</name>
    <message>
        <source>Make the panorama</source>
        <translation>Creazione del panorama</translation>
    </message>
    <message>
        <source>Every photo is put where it belongs, and all are joined to one picture.</source>
        <translation>Ogni foto viene messa al suo posto, e tutte vengono unite in un&apos;unica immagine.</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>Re&amp;gistro</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Show in fol&amp;der</source>
        <translation>&amp;Mostra nella cartella</translation>
    </message>
    <message>
        <source>Open &amp;in browser</source>
        <translation>Apri nel &amp;browser</translation>
    </message>
    <message>
        <source>Open in H&amp;ugin</source>
        <translation>Apri in &amp;Hugin</translation>
    </message>
    <message>
        <source>S&amp;ettings</source>
        <translation>Impostazi&amp;oni</translation>
    </message>
    <message>
        <source>Make it again, in another size or as other files.</source>
        <translation>Per crearlo di nuovo, in un&apos;altra dimensione o come altri file.</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed?</source>
        <translation>Impossibile avviare Hugin. È installato?</translation>
    </message>
    <message>
        <source>&amp;Change...</source>
        <translation>Sceg&amp;li...</translation>
    </message>
    <message>
        <source>As sharp as the photos</source>
        <translation>Nitido come le foto</translation>
    </message>
    <message>
        <source>Half as wide</source>
        <translation>Metà della larghezza</translation>
    </message>
    <message>
        <source>A quarter as wide: a quick look</source>
        <translation>Un quarto della larghezza: uno sguardo rapido</translation>
    </message>
    <message>
        <source>Fused: shows lights and shadows</source>
        <translation>Fusione: mostra luci e ombre</translation>
    </message>
    <message>
        <source>The reference exposure only</source>
        <translation>Solo l&apos;esposizione di riferimento</translation>
    </message>
    <message>
        <source>The light itself (HDR)</source>
        <translation>La luce stessa (HDR)</translation>
    </message>
    <message>
        <source>A pa&amp;ge that opens in any browser</source>
        <translation>Una pagina che si apre in &amp;qualsiasi browser</translation>
    </message>
    <message>
        <source>A folder to &amp;zoom into, of any size</source>
        <translation>Una cartella da vedere con lo &amp;zoom, di qualsiasi dimensione</translation>
    </message>
    <message>
        <source>&amp;Trust the head: skip the alignment</source>
        <translation>Considera affi&amp;dabile la testa: salta l&apos;allineamento</translation>
    </message>
    <message>
        <source>Photos stay at the angles that the head has recorded. Quicker, and right where the photos show nothing to go by.</source>
        <translation>Le foto restano agli angoli registrati dalla testa. Più veloce, e adatto quando le foto non offrono alcun riferimento.</translation>
    </message>
    <message>
        <source>&amp;Picture:</source>
        <translation>Immagin&amp;e:</translation>
    </message>
    <message>
        <source>&amp;Size:</source>
        <translation>Dime&amp;nsioni:</translation>
    </message>
    <message>
        <source>B&amp;rackets:</source>
        <translation>B&amp;racketing:</translation>
    </message>
    <message>
        <source>Also:</source>
        <translation>Inoltre:</translation>
    </message>
    <message>
        <source>Angles:</source>
        <translation>Angoli:</translation>
    </message>
    <message>
        <source>Where the panorama goes</source>
        <translation>Dove salvare il panorama</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.tif)</source>
        <translation>Immagini (*.jpg *.tif)</translation>
    </message>
    <message>
        <source>Photos are RAW files, and no program is installed that develops them. Install libraw-bin, dcraw, darktable or rawtherapee, or take the JPEGs of these photos.</source>
        <translation>Le foto sono file RAW e non è installato alcun programma che le sviluppi. Installare libraw-bin, dcraw, darktable o rawtherapee, o usare i JPEG di queste foto.</translation>
    </message>
    <message>
        <source>Estimating...</source>
        <translation>Stima in corso...</translation>
    </message>
    <message>
        <source>Stopping...</source>
        <translation>Interruzione in corso...</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Avvio...</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>In&amp;terrompi</translation>
    </message>
    <message>
        <source>&amp;Make panorama</source>
        <translation>&amp;Crea panorama</translation>
    </message>
    <message>
        <source>Warning: %1</source>
        <translation>Avviso: %1</translation>
    </message>
    <message>
        <source>Done:</source>
        <translation>Completato:</translation>
    </message>
    <message>
        <source>Stopped. What was finished is kept: Make panorama goes on from there.</source>
        <translation>Interrotto. Ciò che è terminato viene conservato: «Crea panorama» riprende da lì.</translation>
    </message>
    <message>
        <source>No program is set up here that opens %1.</source>
        <translation>Qui non è configurato alcun programma che apra %1.</translation>
    </message>
</context>
<context>
    <name>PanoHost::MakeRunner</name>
    <message>
        <source>Not enough memory</source>
        <translation>Memoria insufficiente</translation>
    </message>
    <message>
        <source>close other programs, or make the panorama smaller</source>
        <translation>chiudere altri programmi, o creare un panorama più piccolo</translation>
    </message>
</context>
<context>
    <name>PanoHost::PanoHostApplication</name>
    <message>
        <source>not enough memory</source>
        <translation>memoria insufficiente</translation>
    </message>
    <message>
        <source>it does not say why</source>
        <translation>il motivo non è indicato</translation>
    </message>
</context>
<context>
    <name>PanoHost::PictureView</name>
    <message>
        <source>Finished panorama</source>
        <translation>Panorama terminato</translation>
    </message>
    <message>
        <source>Wheel, + and -: magnify. Drag, arrows: move. Double click, 0: all of it.</source>
        <translation>Rotellina, + e -: ingrandire o ridurre. Trascinamento, frecce: spostare. Doppio clic, 0: vedere tutto.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsModel</name>
    <message>
        <source>No.</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Yaw %1</source>
        <translation>Imbardata %1</translation>
    </message>
    <message>
        <source>Pitch %1</source>
        <translation>Beccheggio %1</translation>
    </message>
    <message>
        <source>Roll %1</source>
        <translation>Rollio %1</translation>
    </message>
    <message>
        <source>Aligned yaw %1</source>
        <translation>Imbardata allineata %1</translation>
    </message>
    <message>
        <source>Aligned pitch %1</source>
        <translation>Beccheggio allineato %1</translation>
    </message>
    <message>
        <source>Aligned roll %1</source>
        <translation>Rollio allineato %1</translation>
    </message>
    <message>
        <source>Off by %1</source>
        <translation>Scarto %1</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punti</translation>
    </message>
    <message>
        <source>Error (pixels)</source>
        <translation>Errore (pixel)</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Exposure (EV)</source>
        <translation>Esposizione (EV)</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Collegamenti</translation>
    </message>
    <message>
        <source>As the head recorded it: to the right, in degrees</source>
        <translation>Come registrato dalla testa: verso destra, in gradi</translation>
    </message>
    <message>
        <source>As the head recorded it: up, in degrees</source>
        <translation>Come registrato dalla testa: verso l&apos;alto, in gradi</translation>
    </message>
    <message>
        <source>As the head recorded it: clockwise, in degrees</source>
        <translation>Come registrato dalla testa: in senso orario, in gradi</translation>
    </message>
    <message>
        <source>How far the photos show that the head stood elsewhere than recorded</source>
        <translation>Di quanto, secondo le foto, la testa si è scostata dalla posizione registrata</translation>
    </message>
    <message>
        <source>Spots that were found again in other photos</source>
        <translation>Punti ritrovati in altre foto</translation>
    </message>
    <message>
        <source>How far such spots still lie apart, half of them nearer</source>
        <translation>Distanza che separa ancora questi punti; la metà di essi sono più vicini</translation>
    </message>
    <message>
        <source>Of the first photo: each step up lets in half as much light</source>
        <translation>Della prima foto: ogni passo in più lascia entrare metà della luce</translation>
    </message>
    <message>
        <source>Neighbours in which spots of this photo are looked for</source>
        <translation>Foto vicine in cui si cercano punti di questa foto</translation>
    </message>
</context>
<context>
    <name>PanoHost::PositionsTable</name>
    <message>
        <source>Positions</source>
        <translation>Posizioni</translation>
    </message>
</context>
<context>
    <name>PanoHost::Preferences</name>
    <message>
        <source>Use the &amp;desktop&apos;s file dialogs</source>
        <translation>Usa le finestre di dialogo dei file del &amp;desktop</translation>
    </message>
    <message>
        <source>Share &amp;thumbnails with the desktop</source>
        <translation>Condividi le &amp;miniature con il desktop</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>where the system has them</source>
        <translation>dove li ha il sistema</translation>
    </message>
    <message>
        <source>Choo&amp;se...</source>
        <translation>Sce&amp;gli...</translation>
    </message>
    <message>
        <source>Choose the folder of the tools</source>
        <translation>Scegli la cartella degli strumenti</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Lingua:</translation>
    </message>
    <message>
        <source>&amp;Folder of the tools:</source>
        <translation>Cartella degli &amp;strumenti:</translation>
    </message>
    <message>
        <source>Tools:</source>
        <translation>Strumenti:</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Folder of the tools</source>
        <translation>Cartella degli strumenti</translation>
    </message>
    <message>
        <source>%1: not found</source>
        <translation>%1: non trovato</translation>
    </message>
    <message>
        <source>%1: found, %2</source>
        <translation>%1: trovato, %2</translation>
    </message>
    <message>
        <source>No such folder</source>
        <translation>Cartella inesistente</translation>
    </message>
    <message>
        <source>%1 is no folder; choose another one, or leave the field empty.</source>
        <translation>%1 non è una cartella; sceglierne un&apos;altra, o lasciare vuoto il campo.</translation>
    </message>
    <message>
        <source>Centimetres</source>
        <translation>Centimetri</translation>
    </message>
    <message>
        <source>Inches</source>
        <translation>Pollici</translation>
    </message>
    <message>
        <source>&amp;Units of prints:</source>
        <translation>&amp;Unità delle stampe:</translation>
    </message>
    <message>
        <source>The language changes with the next start.</source>
        <translation>La lingua cambia al prossimo avvio.</translation>
    </message>
</context>
<context>
    <name>PanoHost::PreviewGuide</name>
    <message>
        <source>Drop the head&apos;s record and the photos here</source>
        <translation>Trascinare qui il file di ripresa della testa e le foto</translation>
    </message>
    <message>
        <source>Drop the photos here</source>
        <translation>Trascinare qui le foto</translation>
    </message>
    <message>
        <source>The wheel zooms, a double click shows all.</source>
        <translation>La rotellina ingrandisce o riduce, un doppio clic mostra tutto.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ReadingBar</name>
    <message>
        <source>Reading photos</source>
        <translation>Lettura delle foto</translation>
    </message>
    <message>
        <source>%1 photos are handed over...</source>
        <translation>Consegna di %1 foto...</translation>
    </message>
    <message>
        <source>%1 of %2 photos</source>
        <translation>%1 di %2 foto</translation>
    </message>
    <message>
        <source>, %1 per second</source>
        <translation>, %1 al secondo</translation>
    </message>
</context>
<context>
    <name>PanoHost::RecentList</name>
    <message>
        <source>%1, %2 photos, %3</source>
        <translation>%1, %2 foto, %3</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Rimuovi</translation>
    </message>
    <message>
        <source>Recent shoots</source>
        <translation>Riprese recenti</translation>
    </message>
    <message>
        <source>&amp;Recent shoots:</source>
        <translation>Riprese re&amp;centi:</translation>
    </message>
    <message>
        <source>Remove the shoot from this list</source>
        <translation>Rimuovi la ripresa da questo elenco</translation>
    </message>
    <message>
        <source>&amp;Clear list</source>
        <translation>S&amp;vuota elenco</translation>
    </message>
    <message>
        <source>The files are gone.</source>
        <translation>I file non ci sono più.</translation>
    </message>
    <message>
        <source>The files are gone</source>
        <translation>I file non ci sono più</translation>
    </message>
    <message>
        <source>%1 cannot be found; it may lie on a medium that is not there. Remove it from the list?</source>
        <translation>Impossibile trovare %1; forse si trova su un supporto che non è collegato. Rimuoverlo dall&apos;elenco?</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultPage</name>
    <message>
        <source>The panorama</source>
        <translation>Il panorama</translation>
    </message>
    <message>
        <source>Look whether the photos stand where they belong, then save the panorama.</source>
        <translation>Controllare che le foto siano al loro posto, poi salvare il panorama.</translation>
    </message>
    <message>
        <source>Views of the panorama</source>
        <translation>Viste del panorama</translation>
    </message>
    <message>
        <source>Pictu&amp;re</source>
        <translation>Imma&amp;gine</translation>
    </message>
    <message>
        <source>P&amp;ositions</source>
        <translation>P&amp;osizioni</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>S&amp;ummary</source>
        <translation>&amp;Riepilogo</translation>
    </message>
    <message>
        <source>Back to &amp;enter it</source>
        <translation>&amp;Torna a inserirla</translation>
    </message>
    <message>
        <source>Save &amp;project...</source>
        <translation>Salva prog&amp;etto...</translation>
    </message>
    <message>
        <source>Save &amp;description...</source>
        <translation>Salva &amp;descrizione...</translation>
    </message>
    <message>
        <source>Save &amp;table...</source>
        <translation>Salva ta&amp;bella...</translation>
    </message>
    <message>
        <source>Open in Hu&amp;gin</source>
        <translation>Apri in &amp;Hugin</translation>
    </message>
    <message>
        <source>Nothing saved</source>
        <translation>Niente salvato</translation>
    </message>
    <message>
        <source>The panorama has not been saved. Go on all the same?</source>
        <translation>Il panorama non è stato salvato. Continuare comunque?</translation>
    </message>
    <message>
        <source>Nothing that can be saved.</source>
        <translation>Non c&apos;è niente da salvare.</translation>
    </message>
    <message>
        <source>To look at</source>
        <translation>Da controllare</translation>
    </message>
    <message>
        <source>One more stands in the summary.</source>
        <translation>Un altro avviso si trova nel riepilogo.</translation>
    </message>
    <message>
        <source>%1 more stand in the summary.</source>
        <translation>Altri %1 avvisi si trovano nel riepilogo.</translation>
    </message>
    <message>
        <source>The project was not saved: the focal length is not known. Go back and enter it in the line below the page.</source>
        <translation>Il progetto non è stato salvato: la lunghezza focale non è nota. Tornare indietro e inserirla nella riga sotto la pagina.</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Salva il progetto</translation>
    </message>
    <message>
        <source>Hugin projects (*.pto)</source>
        <translation>Progetti Hugin (*.pto)</translation>
    </message>
    <message>
        <source>Save the description</source>
        <translation>Salva la descrizione</translation>
    </message>
    <message>
        <source>Descriptions (*.json)</source>
        <translation>Descrizioni (*.json)</translation>
    </message>
    <message>
        <source>Save the table</source>
        <translation>Salva la tabella</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Valori separati da virgole (*.csv)</translation>
    </message>
    <message>
        <source>Hugin could not be started. Is it installed? Try to open the saved project from Hugin itself.</source>
        <translation>Impossibile avviare Hugin. È installato? Provare ad aprire il progetto salvato da Hugin stesso.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ResultTexts</name>
    <message>
        <source>%1 at %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 foto</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 posizione</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 posizioni</translation>
    </message>
    <message>
        <source> (brackets of %1)</source>
        <translation> (bracketing di %1)</translation>
    </message>
    <message>
        <source> (brackets of %1 to %2)</source>
        <translation> (bracketing da %1 a %2)</translation>
    </message>
    <message>
        <source>%1, %2, %3</source>
        <translation>%1, %2, %3</translation>
    </message>
    <message>
        <source>no links</source>
        <translation>nessun collegamento</translation>
    </message>
    <message>
        <source>1 link</source>
        <translation>1 collegamento</translation>
    </message>
    <message>
        <source>%1 links</source>
        <translation>%1 collegamenti</translation>
    </message>
    <message>
        <source>%1, into HDR</source>
        <translation>%1, in HDR</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>File di ripresa</translation>
    </message>
    <message>
        <source>Within brackets</source>
        <translation>All&apos;interno del bracketing</translation>
    </message>
    <message>
        <source>as one</source>
        <translation>come una sola</translation>
    </message>
    <message>
        <source>The photos of a bracket lie exactly on each other.</source>
        <translation>Le foto di un bracketing si sovrappongono esattamente.</translation>
    </message>
    <message>
        <source>Right for a firm tripod: one direction counts for all of them.</source>
        <translation>Adatto a un treppiede stabile: una sola direzione vale per tutte.</translation>
    </message>
    <message>
        <source>each by itself</source>
        <translation>ciascuna a sé</translation>
    </message>
    <message>
        <source>Control points are looked for between the photos of a bracket.</source>
        <translation>Si cercano punti di controllo tra le foto di un bracketing.</translation>
    </message>
    <message>
        <source>Right when the camera may have moved between two exposures.</source>
        <translation>Adatto se la fotocamera può essersi mossa tra due esposizioni.</translation>
    </message>
    <message>
        <source>Wrong points</source>
        <translation>Punti errati</translation>
    </message>
    <message>
        <source>removed</source>
        <translation>eliminati</translation>
    </message>
    <message>
        <source>kept</source>
        <translation>mantenuti</translation>
    </message>
    <message>
        <source>They are marked, and move nothing.</source>
        <translation>Vengono contrassegnati e non spostano nulla.</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Obiettivo</translation>
    </message>
    <message>
        <source>As for 35 mm film: it says how wide a photo sees.</source>
        <translation>Equivalente alla pellicola da 35 mm: indica quanto campo abbraccia una foto.</translation>
    </message>
    <message>
        <source>fisheye lens, focal length not known</source>
        <translation>obiettivo fisheye, lunghezza focale non nota</translation>
    </message>
    <message>
        <source>standard lens, focal length not known</source>
        <translation>obiettivo standard, lunghezza focale non nota</translation>
    </message>
    <message>
        <source>Nothing can be put together without it.</source>
        <translation>Senza di essa non si può montare nulla.</translation>
    </message>
    <message>
        <source>fisheye lens of %1 mm</source>
        <translation>obiettivo fisheye da %1 mm</translation>
    </message>
    <message>
        <source>standard lens of %1 mm</source>
        <translation>obiettivo standard da %1 mm</translation>
    </message>
    <message>
        <source>Brackets</source>
        <translation>Bracketing</translation>
    </message>
    <message>
        <source>none, into HDR</source>
        <translation>nessuno, in HDR</translation>
    </message>
    <message>
        <source>HDR was chosen, but there is one exposure of each position.</source>
        <translation>È stato scelto HDR, ma c&apos;è una sola esposizione per posizione.</translation>
    </message>
    <message>
        <source>into HDR</source>
        <translation>in HDR</translation>
    </message>
    <message>
        <source>The picture holds the light itself, from all exposures.</source>
        <translation>L&apos;immagine contiene la luce stessa, da tutte le esposizioni.</translation>
    </message>
    <message>
        <source>For programs that work on with it: no screen shows all of it.</source>
        <translation>Per programmi che la elaborano ulteriormente: nessuno schermo la mostra per intero.</translation>
    </message>
    <message>
        <source>into an ordinary picture</source>
        <translation>in un&apos;immagine normale</translation>
    </message>
    <message>
        <source>Of each exposure what is neither too dark nor too bright.</source>
        <translation>Di ogni esposizione, ciò che non è né troppo scuro né troppo chiaro.</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Collegamenti</translation>
    </message>
    <message>
        <source>Control points are looked for in these pairs of neighbours alone.</source>
        <translation>I punti di controllo si cercano solo in queste coppie di foto vicine.</translation>
    </message>
    <message>
        <source>Photos that are no neighbours are never compared: a sky or a wall that looks alike cannot lead astray.</source>
        <translation>Le foto non vicine non vengono mai confrontate: un cielo o un muro dall&apos;aspetto simile non può trarre in inganno.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>One position has no neighbours.</source>
        <translation>Una sola posizione non ha vicine.</translation>
    </message>
    <message>
        <source>All photos that overlap are compared instead.</source>
        <translation>Vengono invece confrontate tutte le foto che si sovrappongono.</translation>
    </message>
    <message>
        <source>Control points</source>
        <translation>Punti di controllo</translation>
    </message>
    <message>
        <source>not looked for</source>
        <translation>non cercati</translation>
    </message>
    <message>
        <source>Photos stay where the head has recorded them.</source>
        <translation>Le foto restano dove le ha registrate la testa.</translation>
    </message>
    <message>
        <source>In Hugin you can set control points by hand.</source>
        <translation>In Hugin si possono inserire a mano i punti di controllo.</translation>
    </message>
    <message>
        <source>looked for</source>
        <translation>cercati</translation>
    </message>
    <message>
        <source>Spots that two photos share say how they belong together.</source>
        <translation>I punti comuni a due foto indicano come queste si uniscono.</translation>
    </message>
    <message>
        <source>looked for in one exposure of each bracket</source>
        <translation>cercati in un&apos;esposizione di ogni bracketing</translation>
    </message>
    <message>
        <source>In the first photo of each bracket, the reference.</source>
        <translation>Nella prima foto di ogni bracketing, quella di riferimento.</translation>
    </message>
    <message>
        <source>looked for in all exposures</source>
        <translation>cercati in tutte le esposizioni</translation>
    </message>
    <message>
        <source>Takes longer, and finds more where one exposure is too dark or too bright.</source>
        <translation>Richiede più tempo, e trova di più dove un&apos;esposizione è troppo scura o troppo chiara.</translation>
    </message>
    <message>
        <source>Optimisation</source>
        <translation>Ottimizzazione</translation>
    </message>
    <message>
        <source>skipped</source>
        <translation>saltata</translation>
    </message>
    <message>
        <source>The head is trusted: photos stay where it has recorded them.</source>
        <translation>Ci si fida della testa: le foto restano dove le ha registrate.</translation>
    </message>
    <message>
        <source>Right for a head without play. It saves the time of looking for points.</source>
        <translation>Adatto a una testa senza gioco. Risparmia il tempo della ricerca dei punti.</translation>
    </message>
    <message>
        <source>from the record</source>
        <translation>a partire dal file di ripresa</translation>
    </message>
    <message>
        <source>Control points move the photos; those without any stay as recorded.</source>
        <translation>I punti di controllo spostano le foto; quelle che non ne hanno restano dove sono state registrate.</translation>
    </message>
    <message>
        <source>The usual choice: skies and walls without a mark stay in place.</source>
        <translation>La scelta abituale: cieli e muri senza dettagli restano al loro posto.</translation>
    </message>
    <message>
        <source>free</source>
        <translation>libera</translation>
    </message>
    <message>
        <source>The record is where the search begins, no more.</source>
        <translation>Le posizioni registrate sono solo il punto di partenza della ricerca.</translation>
    </message>
    <message>
        <source>Right when the head has slipped.</source>
        <translation>Adatto quando la testa ha slittato.</translation>
    </message>
    <message>
        <source>The focal length is not known: no photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>La lunghezza focale non è nota: nessuna foto la indica. Tornare indietro e inserirla nella riga sotto la pagina, in «Lunghezza focale».</translation>
    </message>
    <message>
        <source>The focal length is not known: neither the record nor a photo names it. Go back and enter it in the line below the page, at &quot;Focal length&quot;.</source>
        <translation>La lunghezza focale non è nota: non la indicano né il file di ripresa né le foto. Tornare indietro e inserirla nella riga sotto la pagina, in «Lunghezza focale».</translation>
    </message>
    <message>
        <source>The lens is taken for a fisheye, and no photo says so. If it is none, go back and choose the standard lens.</source>
        <translation>L&apos;obiettivo è considerato un fisheye, ma nessuna foto lo indica. Se non lo è, tornare indietro e scegliere l&apos;obiettivo standard.</translation>
    </message>
    <message>
        <source>The photos say that they were taken through a fisheye, and the lens is taken for a standard one. If it is a fisheye, go back and choose that.</source>
        <translation>Le foto indicano di essere state scattate con un fisheye, ma l&apos;obiettivo è considerato standard. Se è un fisheye, tornare indietro e sceglierlo.</translation>
    </message>
    <message>
        <source>Until then all %1 positions lie on one point.</source>
        <translation>Fino ad allora tutte le %1 posizioni si trovano in un unico punto.</translation>
    </message>
    <message>
        <source>All %1 positions lie on one point: the record says that the head did not move.</source>
        <translation>Tutte le %1 posizioni si trovano in un unico punto: secondo il file di ripresa la testa non si è mossa.</translation>
    </message>
    <message>
        <source>No two photos are linked: through a lens of %1 mm neighbours are too far apart. Is the focal length right?</source>
        <translation>Nessuna foto è collegata a un&apos;altra: con un obiettivo da %1 mm le vicine sono troppo distanti. La lunghezza focale è giusta?</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 was not saved: there is a folder of that name. Choose another name.</source>
        <translation>%1 non è stato salvato: esiste una cartella con quel nome. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>%1 was not saved: the folder %2 is not there. Was it moved, or its disk unplugged? Choose another folder.</source>
        <translation>%1 non è stato salvato: la cartella %2 non c&apos;è. È stata spostata, o il suo disco è stato scollegato? Scegliere un&apos;altra cartella.</translation>
    </message>
    <message>
        <source>%1 was not saved: the disk is full. Make room on it, or choose a folder on another disk.</source>
        <translation>%1 non è stato salvato: il disco è pieno. Liberare spazio, o scegliere una cartella su un altro disco.</translation>
    </message>
    <message>
        <source>%1 was not saved: nothing can be written in %2. Choose a folder of your own, such as your pictures.</source>
        <translation>%1 non è stato salvato: non si può scrivere in %2. Scegliere una cartella propria, come quella delle immagini.</translation>
    </message>
    <message>
        <source>%1 was not saved: a file of that name is there and is protected. Choose another name.</source>
        <translation>%1 non è stato salvato: esiste già un file con quel nome ed è protetto. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>%1 was not saved: the name is too long. Choose a shorter one.</source>
        <translation>%1 non è stato salvato: il nome è troppo lungo. Sceglierne uno più corto.</translation>
    </message>
    <message>
        <source>%1 was not saved: %2</source>
        <translation>%1 non è stato salvato: %2</translation>
    </message>
</context>
<context>
    <name>PanoHost::Said</name>
    <message>
        <source>no control points are wanted (automatic detection is off): kept as recorded</source>
        <translation>non sono richiesti punti di controllo (il rilevamento automatico è disattivato): le foto restano dove sono state registrate</translation>
    </message>
    <message>
        <source>photos are left as recorded (optimisation is skipped)</source>
        <translation>le foto restano dove sono state registrate (ottimizzazione saltata)</translation>
    </message>
    <message>
        <source>there is one photo only: kept as recorded</source>
        <translation>c&apos;è una sola foto: resta dove è stata registrata</translation>
    </message>
    <message>
        <source>no two photos overlap where the record puts them: kept as recorded</source>
        <translation>nessuna foto si sovrappone a un&apos;altra dove le colloca il file di ripresa: restano dove sono state registrate</translation>
    </message>
    <message>
        <source>no spot was found in two photos (nothing but sky or fog, or the photos are not of this record): kept as recorded</source>
        <translation>nessun punto comune a due foto (solo cielo o nebbia, o le foto non sono di questo file di ripresa): restano dove sono state registrate</translation>
    </message>
    <message>
        <source>%1; kept as recorded</source>
        <translation>%1; le foto restano dove sono state registrate</translation>
    </message>
    <message>
        <source>none of the photos can be used: were they moved since the import?</source>
        <translation>nessuna delle foto è utilizzabile: sono state spostate dopo l&apos;importazione?</translation>
    </message>
    <message>
        <source>the photos fit the order &apos;%1&apos; better than &apos;%2&apos;: import them with --mode %1</source>
        <translation>le foto corrispondono meglio all&apos;ordine «%1» che a «%2»: importarle con l&apos;ordine %1</translation>
    </message>
    <message>
        <source>the panorama is made %1 stops brighter: what is white in a photo stays white</source>
        <translation>il panorama viene schiarito di %1 stop: ciò che è bianco in una foto resta bianco</translation>
    </message>
    <message>
        <source>%1 of %2 tied, %3, median %4 pixels</source>
        <translation>%1 di %2 collegate, %3, mediana di %4 pixel</translation>
    </message>
    <message>
        <source>%1 point</source>
        <translation>%1 punto</translation>
    </message>
    <message>
        <source>%1 points</source>
        <translation>%1 punti</translation>
    </message>
    <message>
        <source> and %1 more</source>
        <translation> e %1 in più</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put it</source>
        <translation>nessun punto in %1 (%2): resta dove l&apos;ha collocata la testa</translation>
    </message>
    <message>
        <source>no points in %1 (%2): kept where the head put them</source>
        <translation>nessun punto in %1 (%2): restano dove le ha collocate la testa</translation>
    </message>
    <message>
        <source>lens %1 mm instead of %2</source>
        <translation>obiettivo da %1 mm invece di %2</translation>
    </message>
    <message>
        <source>the lens darkens its corners by %1 %: evened out</source>
        <translation>l&apos;obiettivo scurisce gli angoli del %1%: compensato</translation>
    </message>
    <message>
        <source>exposures are not what the photos say, by up to %1 stops: evened out</source>
        <translation>le esposizioni differiscono da quanto indicano le foto, fino a %1 stop: compensato</translation>
    </message>
    <message>
        <source>the head repeats to %1 degrees</source>
        <translation>ripetibilità della testa: %1 gradi</translation>
    </message>
    <message>
        <source>less than %1</source>
        <translation>meno di %1</translation>
    </message>
    <message>
        <source>the camera sits %1 degrees crooked on the head</source>
        <translation>la fotocamera è storta di %1 gradi sulla testa</translation>
    </message>
    <message>
        <source>the head&apos;s steps are %1 (across) and %2 (up) times what was stated</source>
        <translation>i passi della testa sono %1 (in orizzontale) e %2 (in verticale) volte quelli indicati</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther right than recorded: did its turning axis slip?</source>
        <translation>da %1 in poi la testa è %2 gradi a destra della posizione registrata: il suo asse di rotazione ha slittato?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees farther left than recorded: did its turning axis slip?</source>
        <translation>da %1 in poi la testa è %2 gradi a sinistra della posizione registrata: il suo asse di rotazione ha slittato?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees higher than recorded: did its tilting axis slip?</source>
        <translation>da %1 in poi la testa è %2 gradi sopra la posizione registrata: il suo asse di inclinazione ha slittato?</translation>
    </message>
    <message>
        <source>from %1 on the head stands %2 degrees lower than recorded: did its tilting axis slip?</source>
        <translation>da %1 in poi la testa è %2 gradi sotto la posizione registrata: il suo asse di inclinazione ha slittato?</translation>
    </message>
    <message>
        <source>%1 was taken %2 degrees from where the head says: was it bumped?</source>
        <translation>%1 è stata scattata a %2 gradi da dove indica la testa: c&apos;è stato un urto?</translation>
    </message>
    <message>
        <source>residuals suggest parallax (%1 pixels): near things move against far ones; is the camera&apos;s nodal point on the head&apos;s axes?</source>
        <translation>gli errori residui fanno pensare a parallasse (%1 pixel): gli oggetti vicini si spostano rispetto a quelli lontani; il punto nodale della fotocamera è sugli assi della testa?</translation>
    </message>
    <message>
        <source>was %1 x %2 pixels when imported, is now %3 x %4</source>
        <translation>era di %1 x %2 pixel all&apos;importazione, ora è di %3 x %4</translation>
    </message>
    <message>
        <source>cannot keep the features of photos there: %1</source>
        <translation>impossibile conservarvi i dettagli delle foto: %1</translation>
    </message>
    <message>
        <source>TMPDIR names a folder with more room</source>
        <translation>indicare in TMPDIR una cartella con più spazio</translation>
    </message>
    <message>
        <source>cannot read the features of photos back: %1</source>
        <translation>impossibile rileggere i dettagli delle foto: %1</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>senza indicazione</translation>
    </message>
    <message>
        <source>%1: %2, bracket %3, focal %4, lens %5</source>
        <translation>%1: %2, bracketing di %3, focale %4, obiettivo %5</translation>
    </message>
    <message>
        <source>copy it from the card again</source>
        <translation>copiarla di nuovo dalla scheda</translation>
    </message>
    <message>
        <source>%1 given, %2 readable, focal %3, lens %4</source>
        <translation>%1 scelte, %2 leggibili, focale %3, obiettivo %4</translation>
    </message>
    <message>
        <source>neither the photos nor the record name the focal length</source>
        <translation>né le foto né il file di ripresa indicano la lunghezza focale</translation>
    </message>
    <message>
        <source>give it, as for 35 mm film: --focal 24</source>
        <translation>inserirla, equivalente alla pellicola da 35 mm</translation>
    </message>
    <message>
        <source>not all photos have a capture time</source>
        <translation>non tutte le foto hanno un&apos;ora di scatto</translation>
    </message>
    <message>
        <source>%1 was taken before %2</source>
        <translation>%1 è stata scattata prima di %2</translation>
    </message>
    <message>
        <source>try --order time</source>
        <translation>provare a ordinarle per ora</translation>
    </message>
    <message>
        <source>capture times agree</source>
        <translation>le ore di scatto concordano</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>%1 s after %2 (usually %3 s)</source>
        <translation>%1 s dopo %2 (di solito %3 s)</translation>
    </message>
    <message>
        <source>standard</source>
        <translation>standard</translation>
    </message>
    <message>
        <source>fisheye</source>
        <translation>fisheye</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>this folder cannot be made</source>
        <translation>impossibile creare questa cartella</translation>
    </message>
    <message>
        <source>is the disk full, or the folder above it read-only?</source>
        <translation>il disco è pieno, o la cartella superiore è di sola lettura?</translation>
    </message>
    <message>
        <source>no photo reaches these sides of the cube, which are left out: %1</source>
        <translation>nessuna foto raggiunge queste facce del cubo, che vengono omesse: %1</translation>
    </message>
    <message>
        <source>cannot be written (%1)</source>
        <translation>scrittura impossibile (%1)</translation>
    </message>
    <message>
        <source>make room there or choose another place</source>
        <translation>liberare spazio lì o scegliere un&apos;altra posizione</translation>
    </message>
    <message>
        <source>the folder %1 does not exist</source>
        <translation>la cartella %1 non esiste</translation>
    </message>
    <message>
        <source>create it or choose another place</source>
        <translation>crearla o scegliere un&apos;altra posizione</translation>
    </message>
    <message>
        <source>is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>remove it or choose another name with -o</source>
        <translation>eliminarlo o scegliere un altro nome</translation>
    </message>
    <message>
        <source>is a file, and a folder of that name is wanted</source>
        <translation>è un file, e serve una cartella con quel nome</translation>
    </message>
    <message>
        <source>is a folder that panohost has not made</source>
        <translation>è una cartella non creata da panohost</translation>
    </message>
    <message>
        <source>it left a file that is not complete</source>
        <translation>ha lasciato un file incompleto</translation>
    </message>
    <message>
        <source>is the disk full? make room and try again</source>
        <translation>il disco è pieno? liberare spazio e riprovare</translation>
    </message>
    <message>
        <source>make room there and try again</source>
        <translation>liberare spazio lì e riprovare</translation>
    </message>
    <message>
        <source>the panorama has %1 x %2 pixels, and JPEG files at most %3 to a side</source>
        <translation>il panorama è di %1 x %2 pixel, e i file JPEG al massimo di %3 per lato</translation>
    </message>
    <message>
        <source>name it .tif, or make it smaller with --size</source>
        <translation>scegliere un nome con .tif, o una dimensione minore</translation>
    </message>
    <message>
        <source>this panorama&apos;s values are not light</source>
        <translation>i valori di questo panorama non sono luce</translation>
    </message>
    <message>
        <source>needs --output hdr</source>
        <translation>scegliere «La luce stessa (HDR)»</translation>
    </message>
    <message>
        <source>is not the panorama that was stitched last</source>
        <translation>non è l&apos;ultimo panorama unito</translation>
    </message>
    <message>
        <source>remove it and try again</source>
        <translation>eliminare il file e riprovare</translation>
    </message>
    <message>
        <source>it left %1 incomplete</source>
        <translation>ha lasciato incompleto %1</translation>
    </message>
    <message>
        <source>is the disk full?</source>
        <translation>il disco è pieno?</translation>
    </message>
    <message>
        <source>the address where the folder will be reached is not known</source>
        <translation>l&apos;indirizzo a cui si troverà la cartella non è noto</translation>
    </message>
    <message>
        <source>give it, such as https://example.org/panoramas</source>
        <translation>indicarlo, per esempio https://example.org/panoramas</translation>
    </message>
    <message>
        <source>%1 less %2 ignored</source>
        <translation>%1 meno %2 da ignorare</translation>
    </message>
    <message>
        <source>%1, %2, bracket %3, %4 ignored</source>
        <translation>%1, %2, bracketing di %3, ignorate: %4</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>--ignore %1 leaves none of %2</source>
        <translation>ignorandone %1 non ne resta nessuna su %2</translation>
    </message>
    <message>
        <source>ignore fewer, or name all photos</source>
        <translation>ignorarne meno, o scegliere tutte le foto</translation>
    </message>
    <message>
        <source>--bracket %1 is more than %2</source>
        <translation>%2 non bastano per un bracketing di %1</translation>
    </message>
    <message>
        <source>each position needs all its exposures</source>
        <translation>ogni posizione richiede tutte le sue esposizioni</translation>
    </message>
    <message>
        <source>%1 are not a multiple of bracket %2</source>
        <translation>%1 non sono un multiplo del bracketing di %2</translation>
    </message>
    <message>
        <source>each position needs all its exposures; --ignore N leaves out the first N photos</source>
        <translation>ogni posizione richiede tutte le sue esposizioni; si possono ignorare le prime foto</translation>
    </message>
    <message>
        <source>%1 (%2 in brackets of %3)</source>
        <translation>%1 (%2 in bracketing di %3)</translation>
    </message>
    <message>
        <source>%1 do not divide %2 evenly</source>
        <translation>%2 non si distribuiscono in parti uguali su %1</translation>
    </message>
    <message>
        <source>are photos missing? --ignore N leaves out the first N photos</source>
        <translation>mancano delle foto? si possono ignorare le prime</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altre %2</translation>
    </message>
    <message>
        <source>no pause tells where</source>
        <translation>nessuna pausa indica dove</translation>
    </message>
    <message>
        <source>the longest pause: %1, in row %2 as they were taken</source>
        <translation>la pausa più lunga: %1, nella riga %2 secondo l&apos;ordine di scatto</translation>
    </message>
    <message>
        <source>the longest pause: %1, in column %2 as they were taken</source>
        <translation>la pausa più lunga: %1, nella colonna %2 secondo l&apos;ordine di scatto</translation>
    </message>
    <message>
        <source>the pictures do not tell which are missing: %1</source>
        <translation>le immagini non permettono di capire quali mancano: %1</translation>
    </message>
    <message>
        <source>no photo for %1 (rows from the top, columns from the left)</source>
        <translation>nessuna foto per %1 (righe dall&apos;alto, colonne da sinistra)</translation>
    </message>
    <message>
        <source>no such file</source>
        <translation>file inesistente</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>non è un file normale</translation>
    </message>
    <message>
        <source>no &lt;shoot&gt; pictures</source>
        <translation>non contiene immagini &lt;shoot&gt;</translation>
    </message>
    <message>
        <source>is it an old-style Papywizard file (image/coords)?</source>
        <translation>è un vecchio file di Papywizard (image/coords)?</translation>
    </message>
    <message>
        <source>its &lt;shoot&gt; holds no &lt;pict&gt;: no shot was recorded</source>
        <translation>il suo &lt;shoot&gt; non contiene alcun &lt;pict&gt;: nessuno scatto registrato</translation>
    </message>
    <message>
        <source>choose the record of a finished shoot</source>
        <translation>scegliere il file di una ripresa conclusa</translation>
    </message>
    <message>
        <source>no op_shoot command: no shot was recorded</source>
        <translation>nessun comando op_shoot: nessuno scatto registrato</translation>
    </message>
    <message>
        <source>is it the script that the head ran?</source>
        <translation>è lo script eseguito dalla testa?</translation>
    </message>
    <message>
        <source>correct this line, or choose another script</source>
        <translation>correggere questa riga, o scegliere un altro script</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>is it the record that the head wrote?</source>
        <translation>è il file scritto dalla testa?</translation>
    </message>
    <message>
        <source>no such record</source>
        <translation>file di ripresa inesistente</translation>
    </message>
    <message>
        <source>check the name</source>
        <translation>controllare il nome</translation>
    </message>
    <message>
        <source>unknown head &apos;%1&apos;%2</source>
        <translation>testa sconosciuta «%1»%2</translation>
    </message>
    <message>
        <source>heads: %1</source>
        <translation>teste: %1</translation>
    </message>
    <message>
        <source>no record of some of its shots can be made</source>
        <translation>impossibile creare un file di ripresa con solo alcuni dei suoi scatti</translation>
    </message>
    <message>
        <source>take the shots by hand</source>
        <translation>eseguire gli scatti a mano</translation>
    </message>
    <message>
        <source>using %1</source>
        <translation>si usa %1</translation>
    </message>
    <message>
        <source>has no import plug-in for %1</source>
        <translation>non ha un plug-in di importazione per %1</translation>
    </message>
    <message>
        <source>set --plugin to another library</source>
        <translation>usare un&apos;altra libreria di plug-in</translation>
    </message>
    <message>
        <source>the page refuses them</source>
        <translation>la pagina le rifiuta</translation>
    </message>
    <message>
        <source>make it first</source>
        <translation>crearla prima</translation>
    </message>
    <message>
        <source>name a file in it</source>
        <translation>scegliere un file al suo interno</translation>
    </message>
    <message>
        <source>name a file of your own</source>
        <translation>scegliere un file proprio</translation>
    </message>
    <message>
        <source>cannot be written there: %1</source>
        <translation>impossibile scrivere lì: %1</translation>
    </message>
    <message>
        <source>choose a folder of your own</source>
        <translation>scegliere una cartella propria</translation>
    </message>
    <message>
        <source>is one of the input files</source>
        <translation>è uno dei file di partenza</translation>
    </message>
    <message>
        <source>choose another name for the result</source>
        <translation>scegliere un altro nome per il risultato</translation>
    </message>
    <message>
        <source>given twice</source>
        <translation>scelta due volte</translation>
    </message>
    <message>
        <source>name each photo once</source>
        <translation>scegliere ogni foto una sola volta</translation>
    </message>
    <message>
        <source>no such photo</source>
        <translation>foto inesistente</translation>
    </message>
    <message>
        <source>rename the file: its name is not in UTF-8</source>
        <translation>rinominare il file: il suo nome non è in UTF-8</translation>
    </message>
    <message>
        <source>name the photos in it, e.g. %1/*.jpg</source>
        <translation>scegliere le foto al suo interno, p. es. %1/*.jpg</translation>
    </message>
    <message>
        <source>name photos only</source>
        <translation>scegliere solo foto</translation>
    </message>
    <message>
        <source>cannot be read: permission denied</source>
        <translation>illeggibile: permesso negato</translation>
    </message>
    <message>
        <source>copy it to a folder of your own</source>
        <translation>copiarla in una cartella propria</translation>
    </message>
    <message>
        <source>are photos missing, or did the shoot stop early?</source>
        <translation>mancano delle foto, o la ripresa si è interrotta prima?</translation>
    </message>
    <message>
        <source>are test shots among the photos?</source>
        <translation>ci sono scatti di prova tra le foto?</translation>
    </message>
    <message>
        <source>records %1, %2 given</source>
        <translation>contiene %1 per %2</translation>
    </message>
    <message>
        <source>has no capture time to order by</source>
        <translation>non ha un&apos;ora di scatto per l&apos;ordinamento</translation>
    </message>
    <message>
        <source>use --order name or --order given</source>
        <translation>ordinare le foto per nome</translation>
    </message>
    <message>
        <source>the record</source>
        <translation>dal file di ripresa</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data</source>
        <translation>dai dati EXIF delle foto</translation>
    </message>
    <message>
        <source>the photos&apos; EXIF data or the record</source>
        <translation>dai dati EXIF delle foto o dal file di ripresa</translation>
    </message>
    <message>
        <source>focal length</source>
        <translation>lunghezza focale</translation>
    </message>
    <message>
        <source>not known from %1</source>
        <translation>non ricavabile %1</translation>
    </message>
    <message>
        <source>give it with --focal MM (35 mm equivalent)</source>
        <translation>tornare indietro e inserirla (equivalente a 35 mm)</translation>
    </message>
    <message>
        <source>focal length %1 (EXIF) against %2 (record); using EXIF; choose with --focal</source>
        <translation>lunghezza focale di %1 (EXIF) contro %2 (file di ripresa); si usa quella EXIF</translation>
    </message>
    <message>
        <source>%1 of the photos name no focal length; using that of the others; choose with --focal</source>
        <translation>%1 delle foto non indicano la lunghezza focale; si usa quella delle altre</translation>
    </message>
    <message>
        <source>%1 lens (EXIF) against %2 (record); using EXIF; choose with --lens</source>
        <translation>obiettivo %1 (EXIF) contro %2 (file di ripresa); si usa quello EXIF</translation>
    </message>
    <message>
        <source>the photos name focal lengths from %1 to %2; using their median; choose with --focal</source>
        <translation>le foto indicano lunghezze focali da %1 a %2; si usa la loro mediana</translation>
    </message>
    <message>
        <source>plug-in page</source>
        <translation>pagina del plug-in</translation>
    </message>
    <message>
        <source>has no &apos;%1&apos;</source>
        <translation>non ha «%1»</translation>
    </message>
    <message>
        <source>is this library of another version? set --plugin</source>
        <translation>questa libreria è di un&apos;altra versione?</translation>
    </message>
    <message>
        <source>%1 is not between %2 and %3</source>
        <translation>%1 non è compreso tra %2 e %3</translation>
    </message>
    <message>
        <source>its photo button opens no file dialog</source>
        <translation>il suo pulsante delle foto non apre una finestra di dialogo dei file</translation>
    </message>
    <message>
        <source> (and %1 more of %2 photos)</source>
        <translation> (e %1 in più su %2 foto)</translation>
    </message>
    <message>
        <source>cannot read (%1)%2</source>
        <translation>illeggibile (%1)%2</translation>
    </message>
    <message>
        <source>is it a photo? try &apos;panohost check&apos;</source>
        <translation>è una foto? vedere la riga sotto la pagina</translation>
    </message>
    <message>
        <source>the page does not accept them</source>
        <translation>la pagina non le accetta</translation>
    </message>
    <message>
        <source>try &apos;panohost check&apos;</source>
        <translation>vedere la riga sotto la pagina</translation>
    </message>
    <message>
        <source>refused by the plug-in</source>
        <translation>rifiutato dal plug-in</translation>
    </message>
    <message>
        <source>temporary links to the photos</source>
        <translation>collegamenti temporanei alle foto</translation>
    </message>
    <message>
        <source>is the temporary folder full? set TMPDIR</source>
        <translation>la cartella temporanea è piena? indicarne un&apos;altra in TMPDIR</translation>
    </message>
    <message>
        <source>of no shot</source>
        <translation>nessuno scatto</translation>
    </message>
    <message>
        <source>shot %1</source>
        <translation>lo scatto %1</translation>
    </message>
    <message>
        <source>: %1 may be %2 (%3 %) or %4</source>
        <translation>: %1 può essere %2 (%3%) o %4</translation>
    </message>
    <message>
        <source>which photo belongs to which shot cannot be told surely%1; take photos of other shoots away, or say the order with --order name, time or given</source>
        <translation>impossibile stabilire con certezza quale foto corrisponde a quale scatto%1; togliere le foto di altre riprese</translation>
    </message>
    <message>
        <source>%1 for shot %2</source>
        <translation>%1 per lo scatto %2</translation>
    </message>
    <message>
        <source>the camera took several photos for each shot: the last one of each is used</source>
        <translation>la fotocamera ha fatto più foto per ogni scatto: si usa l&apos;ultima di ciascuno</translation>
    </message>
    <message>
        <source>taken more than once; used: %1</source>
        <translation>scattate più volte; usate: %1</translation>
    </message>
    <message>
        <source>the camera&apos;s counter began again among these photos: they are ordered by time</source>
        <translation>il contatore della fotocamera è ripartito tra queste foto: vengono ordinate per ora</translation>
    </message>
    <message>
        <source>photo numbers begin again (another card?): they are ordered by time</source>
        <translation>i numeri delle foto ripartono da capo (un&apos;altra scheda?): vengono ordinate per ora</translation>
    </message>
    <message>
        <source>names and times disagree: photos are ordered by time</source>
        <translation>nomi e ore non concordano: le foto vengono ordinate per ora</translation>
    </message>
    <message>
        <source>no photo for %1%2</source>
        <translation>nessuna foto per %1%2</translation>
    </message>
    <message>
        <source> (was the shoot stopped?)</source>
        <translation> (la ripresa è stata interrotta?)</translation>
    </message>
    <message>
        <source>take them again if you can</source>
        <translation>se possibile, ripeterli</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>1 hour</source>
        <translation>1 ora</translation>
    </message>
    <message>
        <source>%1 hours</source>
        <translation>%1 ore</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 ahead of the head&apos;s</source>
        <translation>l&apos;orologio della fotocamera è avanti di %1 rispetto a quello della testa</translation>
    </message>
    <message>
        <source>the camera&apos;s clock is %1 behind the head&apos;s</source>
        <translation>l&apos;orologio della fotocamera è indietro di %1 rispetto a quello della testa</translation>
    </message>
    <message>
        <source>the camera&apos;s clock gains %1 s in a minute</source>
        <translation>l&apos;orologio della fotocamera va avanti di %1 s al minuto</translation>
    </message>
    <message>
        <source>the camera&apos;s clock loses %1 s in a minute</source>
        <translation>l&apos;orologio della fotocamera va indietro di %1 s al minuto</translation>
    </message>
    <message>
        <source>the same picture: %1</source>
        <translation>la stessa immagine: %1</translation>
    </message>
    <message>
        <source>before the first shot (a test?): left out</source>
        <translation>prima del primo scatto (una prova?), fuori dal panorama</translation>
    </message>
    <message>
        <source>of another size: left out</source>
        <translation>di un&apos;altra dimensione, fuori dal panorama</translation>
    </message>
    <message>
        <source>not of this shoot: left out</source>
        <translation>di un&apos;altra ripresa, fuori dal panorama</translation>
    </message>
    <message>
        <source>which photo belongs to which shot could not be checked (%1): they are taken in the order of their names</source>
        <translation>impossibile controllare quale foto corrisponde a quale scatto (%1): vengono prese nell&apos;ordine dei nomi</translation>
    </message>
    <message>
        <source>names, times and counts</source>
        <translation>nomi, ore e quantità</translation>
    </message>
    <message>
        <source>names and counts</source>
        <translation>nomi e quantità</translation>
    </message>
    <message>
        <source>the record tells no times</source>
        <translation>il file di ripresa non indica le ore</translation>
    </message>
    <message>
        <source>the photos tell no times</source>
        <translation>le foto non indicano le ore</translation>
    </message>
    <message>
        <source>the times of photos and record do not agree</source>
        <translation>le ore delle foto e del file di ripresa non concordano</translation>
    </message>
    <message>
        <source>%1 left out: other files of the same photos are used, JPEG before RAW</source>
        <translation>%1 da parte: si usano altri file delle stesse foto, JPEG prima di RAW</translation>
    </message>
    <message>
        <source>not opened: %1 agree</source>
        <translation>non aperte: %1 concordano</translation>
    </message>
    <message>
        <source>the grid</source>
        <translation>la griglia</translation>
    </message>
    <message>
        <source>none of its shots has a photo</source>
        <translation>nessuno dei suoi scatti ha una foto</translation>
    </message>
    <message>
        <source>are these the photos of this shoot?</source>
        <translation>sono queste le foto di questa ripresa?</translation>
    </message>
    <message>
        <source>was made of other photos</source>
        <translation>a partire da altre foto</translation>
    </message>
    <message>
        <source>%1 between %2</source>
        <translation>%1 tra %2</translation>
    </message>
    <message>
        <source>; %1 without a neighbour near enough</source>
        <translation>; %1 senza una vicina abbastanza prossima</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>shots %1</source>
        <translation>gli scatti %1</translation>
    </message>
    <message>
        <source>, exposure %1 of %2</source>
        <translation>, esposizione %1 di %2</translation>
    </message>
    <message>
        <source>no photo for shot %1 (yaw %2, pitch %3%4)</source>
        <translation>nessuna foto per lo scatto %1 (imbardata %2, beccheggio %3%4)</translation>
    </message>
    <message>
        <source>no photo for %1</source>
        <translation>nessuna foto per %1</translation>
    </message>
    <message>
        <source>panorama of %1 x %2 pixels: takes about %3 in %4 (%5 are free) and %6 of memory</source>
        <translation>panorama di %1 x %2 pixel: occupa circa %3 in %4 (%5 liberi) e %6 di memoria</translation>
    </message>
    <message>
        <source>the light is exact to a fraction of a percent, but where every exposure clips it or shows noise</source>
        <translation>la luce è esatta con un errore inferiore all&apos;uno per cento, tranne dove tutte le esposizioni sono bruciate o hanno rumore</translation>
    </message>
    <message>
        <source>the light is good for looking at, not for measuring: the photos&apos; curve is taken for sRGB&apos;s; RAW files, or TIFFs without a curve and --linear, make it exact</source>
        <translation>la luce va bene da guardare, non da misurare: si suppone che la curva delle foto sia quella di sRGB; i file RAW la rendono esatta</translation>
    </message>
    <message>
        <source>is to hold what is kept of this panorama, and holds something else</source>
        <translation>doveva contenere ciò che si conserva di questo panorama, e contiene altro</translation>
    </message>
    <message>
        <source>rename it, or choose another name with -o</source>
        <translation>rinominare la cartella, o scegliere un altro nome</translation>
    </message>
    <message>
        <source>the project asks for another projection; the panorama becomes equirectangular</source>
        <translation>il progetto richiede un&apos;altra proiezione; il panorama sarà equirettangolare</translation>
    </message>
    <message>
        <source>masks that include a region are passed over, only those that exclude one count</source>
        <translation>le maschere che includono una zona vengono ignorate, contano solo quelle che ne escludono una</translation>
    </message>
    <message>
        <source>--centre turns full turns only; this part of the sphere stays as it is</source>
        <translation>si può ruotare solo un panorama a giro completo; questa parte della sfera resta com&apos;è</translation>
    </message>
    <message>
        <source>%1: cannot be read to its end; copy it from the card again, or take it again</source>
        <translation>%1: lettura impossibile fino alla fine; copiarla di nuovo dalla scheda, o ripetere lo scatto</translation>
    </message>
    <message>
        <source>%1 of them are RAW files</source>
        <translation>file RAW tra queste: %1</translation>
    </message>
    <message>
        <source>add --raw-converter dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or give JPEGs or TIFFs of them</source>
        <translation>installare dcraw, libraw-bin, darktable o rawtherapee, o usare i JPEG o TIFF di queste foto</translation>
    </message>
    <message>
        <source>photos stay where the head says: optimisation is skipped</source>
        <translation>le foto restano dove indica la testa: ottimizzazione saltata</translation>
    </message>
    <message>
        <source>what was finished is kept in %1: the same command goes on from there</source>
        <translation>ciò che è terminato viene conservato in %1: «Crea panorama» riprende da lì</translation>
    </message>
    <message>
        <source>photos lie where the record puts them in these commands: nothing is aligned yet</source>
        <translation>le foto sono dove le colloca il file di ripresa: non è ancora stato allineato nulla</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends, and no link to it can be made in %1</source>
        <translation>un progetto di Hugin non ammette nomi di file con virgolette o interruzioni di riga, e non si può creare un collegamento al file in %1</translation>
    </message>
    <message>
        <source>rename the file</source>
        <translation>rinominare il file</translation>
    </message>
    <message>
        <source>name dcraw, dcraw_emu, darktable-cli or rawtherapee-cli, or a command with %i for the RAW file and %o for the TIFF</source>
        <translation>indicare dcraw, dcraw_emu, darktable-cli o rawtherapee-cli, o un comando con %i per il file RAW e %o per il TIFF</translation>
    </message>
    <message>
        <source>this RAW converter was not found</source>
        <translation>questo convertitore RAW non è stato trovato</translation>
    </message>
    <message>
        <source>is its name right? of those known: apt install dcraw, libraw-bin, darktable or rawtherapee</source>
        <translation>il nome è giusto? tra quelli noti: apt install dcraw, libraw-bin, darktable o rawtherapee</translation>
    </message>
    <message>
        <source>the camera chose the white balance of %1 RAW files one by one, and %2 follows it: their colours may differ; dcraw takes the first one&apos;s for all</source>
        <translation>la fotocamera ha scelto il bilanciamento del bianco di %1 file RAW uno per uno, e %2 lo segue: i colori possono variare; dcraw usa per tutti quello del primo</translation>
    </message>
    <message>
        <source>this copy of a photo cannot be made</source>
        <translation>impossibile creare questa copia di una foto</translation>
    </message>
    <message>
        <source>is the photo readable? is the disk full?</source>
        <translation>la foto è leggibile? il disco è pieno?</translation>
    </message>
    <message>
        <source>, of %1</source>
        <translation>, per %1</translation>
    </message>
    <message>
        <source>it left no whole picture of %1</source>
        <translation>non ha lasciato un&apos;immagine completa di %1</translation>
    </message>
    <message>
        <source>can it read this camera&apos;s files? is the disk full?</source>
        <translation>può leggere i file di questa fotocamera? il disco è pieno?</translation>
    </message>
    <message>
        <source>names no program</source>
        <translation>non indica alcun programma</translation>
    </message>
    <message>
        <source>does not say where its files go</source>
        <translation>non indica dove vanno i suoi file</translation>
    </message>
    <message>
        <source>row %1 of column %2</source>
        <translation>la riga %1 della colonna %2</translation>
    </message>
    <message>
        <source>the grid reaches around the sphere: overlap or rows do not fit this lens</source>
        <translation>la griglia fa il giro della sfera: la sovrapposizione o le righe non vanno bene per questo obiettivo</translation>
    </message>
    <message numerus="yes">
        <source>%n column</source>
        <translation>
            <numerusform>%n colonna</numerusform>
            <numerusform>%n colonne</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n file</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n link</source>
        <translation>
            <numerusform>%n collegamento</numerusform>
            <numerusform>%n collegamenti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n photo</source>
        <translation>
            <numerusform>%n foto</numerusform>
            <numerusform>%n foto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n position</source>
        <translation>
            <numerusform>%n posizione</numerusform>
            <numerusform>%n posizioni</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n row</source>
        <translation>
            <numerusform>%n riga</numerusform>
            <numerusform>%n righe</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n shot</source>
        <translation>
            <numerusform>%n scatto</numerusform>
            <numerusform>%n scatti</numerusform>
        </translation>
    </message>
    <message>
        <source>the description</source>
        <translation>la descrizione</translation>
    </message>
    <message>
        <source>%1 recorded directions for %2 photos at %3 positions</source>
        <translation>%1 direzioni registrate per %2 foto in %3 posizioni</translation>
    </message>
    <message>
        <source>its direction is not a number</source>
        <translation>la sua direzione non è un numero</translation>
    </message>
    <message>
        <source>correct the record</source>
        <translation>correggere il file di ripresa</translation>
    </message>
    <message>
        <source>position %1</source>
        <translation>la posizione %1</translation>
    </message>
    <message>
        <source>has no photo</source>
        <translation>non ha foto</translation>
    </message>
    <message>
        <source>holds no photos</source>
        <translation>non contiene foto</translation>
    </message>
    <message>
        <source>name a file that &apos;panohost import --json&apos; has written</source>
        <translation>scegliere una descrizione salvata con panohost</translation>
    </message>
    <message>
        <source>cannot read (not a photo?)</source>
        <translation>illeggibile (non è una foto?)</translation>
    </message>
    <message>
        <source>its pixels cannot be decoded (a RAW file?)</source>
        <translation>impossibile decodificarne i pixel (un file RAW?)</translation>
    </message>
    <message>
        <source>too large to decode</source>
        <translation>troppo grande per essere decodificata</translation>
    </message>
    <message>
        <source>give it with --focal</source>
        <translation>tornare indietro e inserirla</translation>
    </message>
    <message>
        <source>neither the record nor the photos name it</source>
        <translation>non la indicano né il file di ripresa né le foto</translation>
    </message>
    <message>
        <source>no lens has %1 mm</source>
        <translation>nessun obiettivo ha %1 mm</translation>
    </message>
    <message>
        <source>its size in pixels is not known</source>
        <translation>la sua dimensione in pixel non è nota</translation>
    </message>
    <message>
        <source>can another program open it? leave it out if not</source>
        <translation>un altro programma può aprirla? se no, non usarla</translation>
    </message>
    <message>
        <source>the photos have %1 different sizes in pixels</source>
        <translation>le foto hanno %1 dimensioni diverse in pixel</translation>
    </message>
    <message>
        <source>a Hugin project cannot hold a file name with quotation marks or line ends</source>
        <translation>un progetto di Hugin non ammette nomi di file con virgolette o interruzioni di riga</translation>
    </message>
    <message>
        <source>%1 of %2 photos name no exposure; %3 is assumed</source>
        <translation>%1 di %2 foto non indicano l&apos;esposizione; si suppone %3</translation>
    </message>
    <message>
        <source>larger than %1 bytes</source>
        <translation>più grande di %1 byte</translation>
    </message>
    <message>
        <source>give the name of a file</source>
        <translation>indicare il nome di un file</translation>
    </message>
    <message>
        <source>set --plugin or PANOHOST_PLUGIN_PATH to libXPanoHead.so</source>
        <translation>far puntare PANOHOST_PLUGIN_PATH a libXPanoHead.so</translation>
    </message>
    <message>
        <source>no such file or folder</source>
        <translation>file o cartella inesistente</translation>
    </message>
    <message>
        <source>import plug-ins</source>
        <translation>plug-in di importazione</translation>
    </message>
    <message>
        <source>no plug-in library in %1</source>
        <translation>nessuna libreria di plug-in in %1</translation>
    </message>
    <message>
        <source>is not a Qt plug-in library</source>
        <translation>non è una libreria di plug-in Qt</translation>
    </message>
    <message>
        <source>its interface is &apos;%1&apos;, &apos;%2&apos; is needed</source>
        <translation>la sua interfaccia è «%1», serve «%2»</translation>
    </message>
    <message>
        <source>offers no list of plug-ins</source>
        <translation>non offre un elenco di plug-in</translation>
    </message>
    <message>
        <source>holds no import plug-in</source>
        <translation>non contiene alcun plug-in di importazione</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>scrittura impossibile</translation>
    </message>
    <message>
        <source>is of another size than the others of its bracket</source>
        <translation>ha una dimensione diversa dalle altre del suo bracketing</translation>
    </message>
    <message>
        <source>is no warped light</source>
        <translation>non contiene luce deformata</translation>
    </message>
    <message>
        <source>these photos of the project, and %1 more, are not there any more</source>
        <translation>queste foto del progetto, e %1 in più, non ci sono più</translation>
    </message>
    <message>
        <source>not there any more</source>
        <translation>lì non c&apos;è più nulla</translation>
    </message>
    <message>
        <source>put the photos back where they were, or import them again</source>
        <translation>rimettere le foto dove erano, o importarle di nuovo</translation>
    </message>
    <message>
        <source>%1 has %2 bits a colour, %3 has %4, and all must be alike to be blended</source>
        <translation>%1 ha %2 bit per colore, %3 ne ha %4, e per il raccordo devono essere tutte uguali</translation>
    </message>
    <message>
        <source>convert or develop them alike</source>
        <translation>convertirle o svilupparle allo stesso modo</translation>
    </message>
    <message>
        <source>was not written to its end</source>
        <translation>non è stato scritto fino alla fine</translation>
    </message>
    <message>
        <source>is there enough room in %1?</source>
        <translation>c&apos;è abbastanza spazio in %1?</translation>
    </message>
    <message>
        <source>nona, of %1</source>
        <translation>nona, per %1</translation>
    </message>
    <message>
        <source>made no picture of %1</source>
        <translation>non ha creato alcuna immagine di %1</translation>
    </message>
    <message>
        <source>is it a photo that other programs open?</source>
        <translation>è una foto che altri programmi aprono?</translation>
    </message>
    <message>
        <source>size of the panorama</source>
        <translation>dimensione del panorama</translation>
    </message>
    <message>
        <source>%1 x %2 pixels cannot be made</source>
        <translation>impossibile creare %1 x %2 pixel</translation>
    </message>
    <message>
        <source>choose another --size</source>
        <translation>scegliere un&apos;altra dimensione</translation>
    </message>
    <message>
        <source>the stitch needs %1 there, %2 are free</source>
        <translation>il panorama richiede lì %1, sono liberi %2</translation>
    </message>
    <message>
        <source>make room, name another place with -o, or choose a smaller --size</source>
        <translation>liberare spazio, scegliere un&apos;altra posizione o una dimensione minore</translation>
    </message>
    <message>
        <source>memory</source>
        <translation>memoria</translation>
    </message>
    <message>
        <source>the stitch needs about %1, %2 are available</source>
        <translation>il panorama richiede circa %1, sono disponibili %2</translation>
    </message>
    <message>
        <source>close other programs, or choose --jobs 1 or a smaller --size</source>
        <translation>chiudere altri programmi, o scegliere una dimensione minore</translation>
    </message>
    <message>
        <source>try it by itself</source>
        <translation>provare il programma da solo</translation>
    </message>
    <message>
        <source>%1 minutes</source>
        <translation>%1 minuti</translation>
    </message>
    <message>
        <source>it was killed, perhaps because memory ran out</source>
        <translation>è stato interrotto, forse per mancanza di memoria</translation>
    </message>
    <message>
        <source>close other programs and try again</source>
        <translation>chiudere altri programmi e riprovare</translation>
    </message>
    <message>
        <source>it crashed (signal %1)</source>
        <translation>si è chiuso in modo imprevisto (segnale %1)</translation>
    </message>
    <message>
        <source>%1 and said: %2</source>
        <translation>%1, con il messaggio: %2</translation>
    </message>
    <message>
        <source> if so: %1</source>
        <translation> se sì: %1</translation>
    </message>
    <message>
        <source>this program is needed for stitching and was not found</source>
        <translation>questo programma serve per creare il panorama e non è stato trovato</translation>
    </message>
    <message>
        <source>cannot be started (%1)</source>
        <translation>impossibile avviarlo (%1)</translation>
    </message>
    <message>
        <source>it was stopped since it did nothing for %1</source>
        <translation>è stato fermato perché non ha fatto nulla per %1</translation>
    </message>
    <message>
        <source>is the machine very busy, or a network drive away? try again</source>
        <translation>il computer è molto occupato, o un&apos;unità di rete è scollegata? riprovare</translation>
    </message>
    <message>
        <source>it failed without a message</source>
        <translation>errore senza alcun messaggio</translation>
    </message>
    <message>
        <source>it failed and said: %1</source>
        <translation>errore, con il messaggio: %1</translation>
    </message>
    <message>
        <source>is the disk full, or a file damaged that it reads?</source>
        <translation>il disco è pieno, o è danneggiato un file da leggere?</translation>
    </message>
    <message>
        <source>it failed, and there is hardly any room left on the disk at %1 (%2)</source>
        <translation>errore, e non resta quasi più spazio sul disco in %1 (%2)</translation>
    </message>
    <message>
        <source>make room there and go on with the same command; nothing is lost</source>
        <translation>liberare spazio lì e premere di nuovo «Crea panorama»; niente va perso</translation>
    </message>
    <message>
        <source>was the disk full? remove the file and try again</source>
        <translation>il disco era pieno? eliminare il file e riprovare</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>is no picture of 8, 16 or floating bits</source>
        <translation>non è un&apos;immagine a 8 bit, 16 bit o in virgola mobile</translation>
    </message>
    <message>
        <source>is cut off</source>
        <translation>è troncato</translation>
    </message>
    <message>
        <source>cannot be mapped into memory</source>
        <translation>impossibile mapparlo in memoria</translation>
    </message>
    <message>
        <source>is the disk full, or the folder read-only?</source>
        <translation>il disco è pieno, o la cartella è di sola lettura?</translation>
    </message>
    <message>
        <source>%1, process %2 on %3</source>
        <translation>%1, processo %2 su %3</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un altro programma</translation>
    </message>
    <message>
        <source>there is a file of that name: rename it, or choose another name with -o</source>
        <translation>esiste già un file con quel nome: rinominarlo, o scegliere un altro nome</translation>
    </message>
    <message>
        <source>is in use by %1</source>
        <translation>in uso da parte di %1</translation>
    </message>
    <message>
        <source>wait for it to end, or choose another name with -o</source>
        <translation>attendere che termini, o scegliere un altro nome</translation>
    </message>
</context>
<context>
    <name>PanoHost::SavedList</name>
    <message>
        <source>Nothing saved yet.</source>
        <translation>Ancora niente salvato.</translation>
    </message>
    <message>
        <source>Saved files</source>
        <translation>File salvati</translation>
    </message>
    <message>
        <source>Not done</source>
        <translation>Non eseguito</translation>
    </message>
    <message>
        <source>Saved %1 in %2</source>
        <translation>%1 salvato in %2</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Show %1 in its folder</source>
        <translation>Mostra %1 nella sua cartella</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>The folder %1 is not there any more. Was it moved, or its disk unplugged?</source>
        <translation>La cartella %1 non c&apos;è più. È stata spostata, o il suo disco è stato scollegato?</translation>
    </message>
    <message>
        <source>No program could show the folder. It is %1</source>
        <translation>Nessun programma ha potuto mostrare la cartella. È %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootDesk</name>
    <message>
        <source>shot %1: yaw %2, pitch %3</source>
        <translation>scatto %1: imbardata %2, beccheggio %3</translation>
    </message>
    <message>
        <source>The photos do not stand at their shots: go back, and press Fix.</source>
        <translation>Le foto non corrispondono ai loro scatti: tornare indietro e premere «Correggi».</translation>
    </message>
    <message>
        <source>Another file in place of %1</source>
        <translation>Un altro file al posto di %1</translation>
    </message>
    <message>
        <source>Shots without a photo</source>
        <translation>Scatti senza foto</translation>
    </message>
    <message>
        <source>Take these shots again if you can. The panorama is made without them otherwise.</source>
        <translation>Se possibile, ripetere questi scatti. Altrimenti il panorama viene creato senza di essi.</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootPanel</name>
    <message>
        <source>Flat</source>
        <translation>Piano</translation>
    </message>
    <message>
        <source>Show the photos on a map</source>
        <translation>Mostra le foto su una mappa</translation>
    </message>
    <message>
        <source>Sphere</source>
        <translation>Sfera</translation>
    </message>
    <message>
        <source>Look around from where the camera stood</source>
        <translation>Guarda intorno da dove si trovava la fotocamera</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Collegamenti</translation>
    </message>
    <message>
        <source>Show which photos are linked to each other</source>
        <translation>Mostra quali foto sono collegate tra loro</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Vuoti</translation>
    </message>
    <message>
        <source>Hatch what no photo shows</source>
        <translation>Tratteggia ciò che nessuna foto mostra</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Show the whole shoot</source>
        <translation>Mostra l&apos;intera ripresa</translation>
    </message>
    <message>
        <source>The focal length is not known: photos are drawn as by 50 mm</source>
        <translation>La lunghezza focale non è nota: le foto sono disegnate come con 50 mm</translation>
    </message>
    <message>
        <source>No gaps</source>
        <translation>Nessun vuoto</translation>
    </message>
    <message>
        <source>Linked to no other photo: %1</source>
        <translation>Non collegate ad altre foto: %1</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootStrip</name>
    <message>
        <source>To look at</source>
        <translation>Da controllare</translation>
    </message>
    <message>
        <source>Not yet known</source>
        <translation>Non ancora noto</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>Corretto</translation>
    </message>
    <message>
        <source>About this shoot</source>
        <translation>Informazioni su questa ripresa</translation>
    </message>
    <message>
        <source>Show what is known about this shoot</source>
        <translation>Mostra ciò che si sa di questa ripresa</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Focal length, as for 35 mm film</source>
        <translation>Lunghezza focale, equivalente alla pellicola da 35 mm</translation>
    </message>
</context>
<context>
    <name>PanoHost::ShootView</name>
    <message>
        <source>Picture of the shoot: %1, %2</source>
        <translation>Immagine della ripresa: %1, %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 foto</translation>
    </message>
    <message>
        <source>1 position</source>
        <translation>1 posizione</translation>
    </message>
    <message>
        <source>%1 positions</source>
        <translation>%1 posizioni</translation>
    </message>
    <message>
        <source>position %1 of %2</source>
        <translation>posizione %1 di %2</translation>
    </message>
    <message>
        <source>shot %1 of %2</source>
        <translation>scatto %1 di %2</translation>
    </message>
    <message>
        <source>first of %1 photos here</source>
        <translation>la prima di %1 foto qui</translation>
    </message>
    <message>
        <source>off by %1 pixels</source>
        <translation>errore di %1 pixel</translation>
    </message>
    <message>
        <source>no control points</source>
        <translation>nessun punto di controllo</translation>
    </message>
    <message>
        <source>linked to no other photo</source>
        <translation>non collegata ad altre foto</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>illeggibile</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>Off by, pixels</source>
        <translation>Errore, pixel</translation>
    </message>
</context>
<context>
    <name>PanoHost::StripTexts</name>
    <message>
        <source>Next</source>
        <translation>Successivo</translation>
    </message>
    <message>
        <source>waits for the head&apos;s record</source>
        <translation>attende il file di ripresa della testa</translation>
    </message>
    <message>
        <source>waits for another record: this one is of %1</source>
        <translation>attende un altro file di ripresa: questo è di %1</translation>
    </message>
    <message>
        <source>waits for a record that can be read</source>
        <translation>attende un file di ripresa leggibile</translation>
    </message>
    <message>
        <source>waits for the photos</source>
        <translation>attende le foto</translation>
    </message>
    <message>
        <source>waits until the photos have been read</source>
        <translation>attende che le foto siano lette</translation>
    </message>
    <message>
        <source>waits: the photos do not stand at their shots</source>
        <translation>attende: le foto non corrispondono ai loro scatti</translation>
    </message>
    <message>
        <source>waits: %1 for %2</source>
        <translation>attende: %1 per %2</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message>
        <source>%1 photos</source>
        <translation>%1 foto</translation>
    </message>
    <message>
        <source>1 shot</source>
        <translation>1 scatto</translation>
    </message>
    <message>
        <source>%1 shots</source>
        <translation>%1 scatti</translation>
    </message>
    <message>
        <source>waits: not all photos can be used</source>
        <translation>attende: alcune foto non sono utilizzabili</translation>
    </message>
    <message>
        <source>waits: %1</source>
        <translation>attende: %1</translation>
    </message>
    <message>
        <source>waits: the page does not accept these photos</source>
        <translation>attende: la pagina non accetta queste foto</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>File di ripresa</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>%1 cannot be used: %2</source>
        <translation>Non utilizzabili: %1 (%2)</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>each photo stands at its shot</source>
        <translation>ogni foto corrisponde al suo scatto</translation>
    </message>
    <message>
        <source>the photos do not stand at their shots</source>
        <translation>le foto non corrispondono ai loro scatti</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>Lunghezza focale</translation>
    </message>
    <message>
        <source>%1, as the last time with such photos</source>
        <translation>%1, come l&apos;ultima volta con foto simili</translation>
    </message>
    <message>
        <source>%1, as entered</source>
        <translation>%1, valore inserito</translation>
    </message>
    <message>
        <source>%1, from the record: the photos name none</source>
        <translation>%1, dal file di ripresa: le foto non ne indicano alcuna</translation>
    </message>
    <message>
        <source>no photo names it: enter it, as for 35 mm film</source>
        <translation>nessuna foto la indica: inserirla, equivalente alla pellicola da 35 mm</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Mancanti</translation>
    </message>
    <message>
        <source>Gaps</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Collegamenti</translation>
    </message>
    <message>
        <source>other records: %1</source>
        <translation>altri file di ripresa: %1</translation>
    </message>
    <message>
        <source>results of this program: %1</source>
        <translation>risultati di questo programma: %1</translation>
    </message>
    <message>
        <source>Not taken</source>
        <translation>Non accettati</translation>
    </message>
    <message>
        <source>1 thing to look at</source>
        <translation>1 cosa da controllare</translation>
    </message>
    <message>
        <source>%1 things to look at</source>
        <translation>%1 cose da controllare</translation>
    </message>
    <message>
        <source>Looking at the photos...</source>
        <translation>Esame delle foto...</translation>
    </message>
    <message>
        <source>Everything agrees</source>
        <translation>Tutto concorda</translation>
    </message>
    <message>
        <source>Choose record...</source>
        <translation>Scegli file di ripresa...</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Scegli foto...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Sostituisci...</translation>
    </message>
    <message>
        <source>Fix</source>
        <translation>Correggi</translation>
    </message>
    <message>
        <source>Switch head</source>
        <translation>Cambia testa</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>Inserisci</translation>
    </message>
    <message>
        <source>Show shots...</source>
        <translation>Mostra scatti...</translation>
    </message>
</context>
</TS>

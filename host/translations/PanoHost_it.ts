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
        <source>or choose a smaller size</source>
        <translation>o scegliere una dimensione minore</translation>
    </message>
    <message>
        <source>choose a smaller size</source>
        <translation>scegliere una dimensione minore</translation>
    </message>
    <message>
        <source>choose another size</source>
        <translation>scegliere un&apos;altra dimensione</translation>
    </message>
    <message>
        <source>RAW files make it exact</source>
        <translation>i file RAW la rendono esatta</translation>
    </message>
    <message>
        <source>press Make panorama again</source>
        <translation>premere di nuovo «Crea panorama»</translation>
    </message>
    <message>
        <source>go back and enter it</source>
        <translation>tornare indietro e inserirla</translation>
    </message>
    <message>
        <source>Make panorama goes on from here</source>
        <translation>«Crea panorama» riprende da qui</translation>
    </message>
    <message>
        <source>%1 x %2 pixels at most; takes up to %3 of the disk and %4 of memory.</source>
        <translation>Al massimo %1 x %2 pixel; occupa fino a %3 su disco e %4 di memoria.</translation>
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
    <name>PanoHost::ImportWizard</name>
    <message>
        <source>Import a panorama</source>
        <translation>Importazione di un panorama</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
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
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Preferenze...</translation>
    </message>
    <message>
        <source>&amp;About panohost</source>
        <translation>&amp;Informazioni su panohost</translation>
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
        <source>Language and thumbnails change with the next start.</source>
        <translation>La lingua e le miniature cambiano al prossimo avvio.</translation>
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

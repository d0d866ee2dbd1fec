<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>AllKeys</name>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Tutte le chiavi</translation>
    </message>
    <message>
        <source>Add setting…</source>
        <translation>Aggiungi impostazione…</translation>
    </message>
    <message>
        <source>Add block…</source>
        <translation>Aggiungi blocco…</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifica %1</translation>
    </message>
    <message>
        <source>Remove a block</source>
        <translation>Rimuovi un blocco</translation>
    </message>
    <message>
        <source>Remove the block “%1” with everything in it? You can undo this.</source>
        <translation>Rimuovere il blocco «%1» con tutto il contenuto? È possibile annullare.</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>Rimuovi %1</translation>
    </message>
    <message>
        <source>Add a setting</source>
        <translation>Aggiungi un’impostazione</translation>
    </message>
    <message>
        <source>Key:</source>
        <translation>Chiave:</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>Aggiungi %1</translation>
    </message>
    <message>
        <source>Add a block</source>
        <translation>Aggiungi un blocco</translation>
    </message>
    <message>
        <source>Name of the block:</source>
        <translation>Nome del blocco:</translation>
    </message>
    <message>
        <source>A name is made of letters, digits, “_” and “-”.</source>
        <translation>Un nome è fatto di lettere, cifre, «_» e «-».</translation>
    </message>
</context>
<context>
    <name>CurrentSetting</name>
    <message>
        <source>Choose a setting: its meaning is explained here, and what it does is marked on the paper.</source>
        <translation>Scegli un’impostazione: qui è spiegata, e sulla carta è evidenziato ciò che fa.</translation>
    </message>
    <message>
        <source>No program reads this.</source>
        <translation>Nessun programma legge questa voce.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Predefinito: %1</translation>
    </message>
    <message>
        <source>The settings of: %1</source>
        <translation>Le impostazioni di: %1</translation>
    </message>
    <message>
        <source>Holds the settings of all documents and programs.</source>
        <translation>Contiene le impostazioni di tutti i documenti e programmi.</translation>
    </message>
</context>
<context>
    <name>FileKeeper</name>
    <message>
        <source>Another program has changed the file.</source>
        <translation>Un altro programma ha modificato il file.</translation>
    </message>
    <message>
        <source>Show what differs…</source>
        <translation>Mostra le differenze…</translation>
    </message>
    <message>
        <source>%1 You can look and try here, but not save.</source>
        <translation>%1 Qui puoi guardare e provare, ma non salvare.</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Il file non si può leggere</translation>
    </message>
    <message>
        <source>Merge with the file</source>
        <translation>Unisci con il file</translation>
    </message>
    <message>
        <source>Reload the file</source>
        <translation>Ricarica il file</translation>
    </message>
    <message>
        <source>The file was read again. Undo brings your changes back.</source>
        <translation>Il file è stato riletto. «Annulla» ripristina le tue modifiche.</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
    <message>
        <source>%1 cannot be stored as it stands. %2</source>
        <translation>%1 non si può salvare così. %2</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>The block “%1”: only the first block on top is written.</source>
        <translation>Il blocco «%1»: si scrive solo il primo blocco.</translation>
    </message>
    <message>
        <source>Saving loses something</source>
        <translation>Salvando si perde qualcosa</translation>
    </message>
    <message>
        <source>Saving loses what the details name. A backup keeps the file as it was.</source>
        <translation>Salvando si perde ciò che è indicato nei dettagli. Una copia conserva il file com’era.</translation>
    </message>
    <message>
        <source>Nothing has been changed, and nothing was written.</source>
        <translation>Nulla è cambiato, e nulla è stato scritto.</translation>
    </message>
    <message>
        <source>another program is changing the file; save again when it is done</source>
        <translation>un altro programma sta modificando il file; salva di nuovo quando ha finito</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Salvato %1</translation>
    </message>
    <message>
        <source>Saved. The file as it was is kept as %1</source>
        <translation>Salvato. Il file com’era è conservato come %1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifiche non salvate</translation>
    </message>
    <message>
        <source>Save the changes to %1?</source>
        <translation>Salvare le modifiche a %1?</translation>
    </message>
    <message>
        <source>The file is gone. Save writes it anew.</source>
        <translation>Il file non c’è più. «Salva» lo riscrive.</translation>
    </message>
</context>
<context>
    <name>FirstUse</name>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>%1 characters on a line</source>
        <translation>%1 caratteri per riga</translation>
    </message>
    <message>
        <source>Kind of business</source>
        <translation>Tipo di attività</translation>
    </message>
    <message>
        <source>Set up your paper</source>
        <translation>Imposta la carta</translation>
    </message>
    <message>
        <source>There are no settings yet. Choose what comes nearest: the paper on the right shows it. Everything can be changed afterwards.</source>
        <translation>Non ci sono ancora impostazioni. Scegli ciò che si avvicina di più: la carta a destra lo mostra. Dopo si può cambiare tutto.</translation>
    </message>
    <message>
        <source>Use these settings</source>
        <translation>Usa queste impostazioni</translation>
    </message>
    <message>
        <source>Start empty</source>
        <translation>Inizia da zero</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message>
        <source>Set up a paper</source>
        <translation>Imposta la carta</translation>
    </message>
    <message>
        <source>Choose a document on the left. Its settings are in the middle, its paper is on the right, printed by the real program. Every change shows there at once.</source>
        <translation>Scegli un documento a sinistra. Al centro ci sono le sue impostazioni, a destra la sua carta, stampata dal programma di stampa stesso. Ogni modifica si vede subito.</translation>
    </message>
    <message>
        <source>See what a setting does</source>
        <translation>Vedere che cosa fa un’impostazione</translation>
    </message>
    <message>
        <source>Go to a field: its meaning is explained below, and the rows that it concerns are marked on the paper. What runs over the edge is red.</source>
        <translation>Vai su un campo: sotto è spiegato il suo significato e sulla carta sono evidenziate le righe che riguarda. Ciò che esce dal bordo è rosso.</translation>
    </message>
    <message>
        <source>Nothing is lost</source>
        <translation>Niente va perso</translation>
    </message>
    <message>
        <source>Nothing is written before you save. Undo takes back every step, and the file as it was stays beside the new one.</source>
        <translation>Non si scrive nulla prima di salvare. «Annulla» riporta indietro ogni passo, e il file com’era resta accanto a quello nuovo.</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>How it works</source>
        <translation>Come funziona</translation>
    </message>
</context>
<context>
    <name>MergeDialog</name>
    <message>
        <source>not set</source>
        <translation>non impostato</translation>
    </message>
    <message>
        <source>The file has changed</source>
        <translation>Il file è cambiato</translation>
    </message>
    <message>
        <source>Another program has changed the file. Tick the settings that are to be as they are in the file; the others stay as they are here.</source>
        <translation>Un altro programma ha modificato il file. Spunta le impostazioni da prendere dal file; le altre restano come sono qui.</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Qui</translation>
    </message>
    <message>
        <source>In the file</source>
        <translation>Nel file</translation>
    </message>
    <message>
        <source>Settings that differ</source>
        <translation>Impostazioni diverse</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>Unisci</translation>
    </message>
    <message>
        <source>Take all from the file</source>
        <translation>Prendi tutto dal file</translation>
    </message>
    <message>
        <source>This can only be as it is in the file.</source>
        <translation>Può essere solo com’è nel file.</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Documents and parts</source>
        <translation>Documenti e parti</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Application</source>
        <translation>Applicazione</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>All keys</source>
        <translation>Tutte le chiavi</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>modificato</translation>
    </message>
    <message>
        <source>something is wrong</source>
        <translation>qualcosa non va</translation>
    </message>
</context>
<context>
    <name>PaperPane</name>
    <message>
        <source>Smaller</source>
        <translation>Più piccolo</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Più grande</translation>
    </message>
    <message>
        <source>Fit the paper to the window</source>
        <translation>Adatta la carta alla finestra</translation>
    </message>
    <message>
        <source>Copy the paper as text</source>
        <translation>Copia la carta come testo</translation>
    </message>
    <message>
        <source>Print job</source>
        <translation>Lavoro di stampa</translation>
    </message>
    <message>
        <source>The print job that is shown on the paper</source>
        <translation>Il lavoro di stampa mostrato sulla carta</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Esempio: %1</translation>
    </message>
    <message>
        <source>A job of your own…</source>
        <translation>Un tuo lavoro di stampa…</translation>
    </message>
    <message>
        <source>A job of your own</source>
        <translation>Un tuo lavoro di stampa</translation>
    </message>
    <message>
        <source>Print jobs (*.xml);;All files (*)</source>
        <translation>Lavori di stampa (*.xml);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>The job prints nothing.</source>
        <translation>Il lavoro non stampa nulla.</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>Save the paper as a picture</source>
        <translation>Salva la carta come immagine</translation>
    </message>
    <message>
        <source>PNG picture (*.png)</source>
        <translation>Immagine PNG (*.png)</translation>
    </message>
    <message>
        <source>PDF document (*.pdf)</source>
        <translation>Documento PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non salvato</translation>
    </message>
</context>
<context>
    <name>PaperTask</name>
    <message>
        <source>There is no room for the preview in %1.</source>
        <translation>Non c’è posto per l’anteprima in %1.</translation>
    </message>
    <message>
        <source>The job takes too long to be shown.</source>
        <translation>Il lavoro richiede troppo tempo per essere mostrato.</translation>
    </message>
    <message>
        <source>The program that prints cannot be started: %1</source>
        <translation>Il programma che stampa non si avvia: %1</translation>
    </message>
    <message>
        <source>The program that prints has crashed.</source>
        <translation>Il programma che stampa si è bloccato.</translation>
    </message>
</context>
<context>
    <name>PaperView</name>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
</context>
<context>
    <name>Register</name>
    <message>
        <source>To the cash register</source>
        <translation>Al registratore di cassa</translation>
    </message>
    <message>
        <source>, with a modifier that is no number</source>
        <translation>, con una variazione che non è un numero</translation>
    </message>
    <message>
        <source>, less %1</source>
        <translation>, meno %1</translation>
    </message>
    <message>
        <source>, plus %1</source>
        <translation>, più %1</translation>
    </message>
    <message>
        <source>sale: %1 x %2 at %3</source>
        <translation>vendita: %1 x %2 a %3</translation>
    </message>
    <message>
        <source>no quantity</source>
        <translation>senza quantità</translation>
    </message>
    <message>
        <source>an item without a name</source>
        <translation>un articolo senza nome</translation>
    </message>
    <message>
        <source>no department</source>
        <translation>nessun reparto</translation>
    </message>
    <message>
        <source>department %1</source>
        <translation>reparto %1</translation>
    </message>
    <message>
        <source>no number</source>
        <translation>non è un numero</translation>
    </message>
    <message>
        <source>reduction</source>
        <translation>riduzione</translation>
    </message>
    <message>
        <source>discount</source>
        <translation>sconto</translation>
    </message>
    <message>
        <source>cash</source>
        <translation>contanti</translation>
    </message>
    <message>
        <source>credit card</source>
        <translation>carta di credito</translation>
    </message>
    <message>
        <source>cheque</source>
        <translation>assegno</translation>
    </message>
    <message>
        <source>not paid</source>
        <translation>non pagato</translation>
    </message>
    <message>
        <source>The register will show %1</source>
        <translation>Il registratore mostrerà %1</translation>
    </message>
    <message>
        <source>: sales %1</source>
        <translation>: vendite %1</translation>
    </message>
    <message>
        <source>, less reductions %1</source>
        <translation>, meno riduzioni %1</translation>
    </message>
    <message>
        <source>, less discount %1</source>
        <translation>, meno sconti %1</translation>
    </message>
    <message>
        <source>Not counted: 1 command that could not be read.</source>
        <translation>Non conteggiato: 1 comando illeggibile.</translation>
    </message>
    <message>
        <source>Not counted: %1 commands that could not be read.</source>
        <translation>Non conteggiati: %1 comandi illeggibili.</translation>
    </message>
    <message>
        <source>Settled by %1</source>
        <translation>Pagamento: %1</translation>
    </message>
    <message>
        <source>%1 less than the sum.</source>
        <translation>%1 meno del totale.</translation>
    </message>
    <message>
        <source>%1 more than the sum.</source>
        <translation>%1 più del totale.</translation>
    </message>
</context>
<context>
    <name>ResultList</name>
    <message>
        <source>Problem</source>
        <translation>Problema</translation>
    </message>
    <message>
        <source>Settings found</source>
        <translation>Impostazioni trovate</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Riga %1: %2</translation>
    </message>
    <message>
        <source>No setting has “%1” in its name, its explanation or its value.</source>
        <translation>Nessuna impostazione ha «%1» nel nome, nella spiegazione o nel valore.</translation>
    </message>
    <message>
        <source>Nothing has been changed.</source>
        <translation>Non è stato modificato nulla.</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Non c’è nulla che non va.</translation>
    </message>
</context>
<context>
    <name>SearchBar</name>
    <message>
        <source>Changed</source>
        <translation>Modificate</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Problemi</translation>
    </message>
    <message>
        <source>Find a setting</source>
        <translation>Trova un’impostazione</translation>
    </message>
    <message>
        <source>Looks in names, explanations, keys and values</source>
        <translation>Cerca in nomi, spiegazioni, chiavi e valori</translation>
    </message>
    <message>
        <source>Problems (%1)</source>
        <translation>Problemi (%1)</translation>
    </message>
</context>
<context>
    <name>SettingField</name>
    <message>
        <source>default</source>
        <translation>predefinito</translation>
    </message>
    <message>
        <source>Reset to the default</source>
        <translation>Ripristina il valore predefinito</translation>
    </message>
    <message>
        <source>Reset %1 to the default</source>
        <translation>Ripristina %1 al valore predefinito</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>Language</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmi</translation>
    </message>
    <message>
        <source>Receipt printer</source>
        <translation>Stampante di scontrini</translation>
    </message>
    <message>
        <source>characters</source>
        <translation>caratteri</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Larghezza della riga</translation>
    </message>
    <message>
        <source>Quantity column</source>
        <translation>Colonna quantità</translation>
    </message>
    <message>
        <source>Price column</source>
        <translation>Colonna prezzo</translation>
    </message>
    <message>
        <source>Total column</source>
        <translation>Colonna importo</translation>
    </message>
    <message>
        <source>Item name</source>
        <translation>Nome dell’articolo</translation>
    </message>
    <message>
        <source>Top margin</source>
        <translation>Margine superiore</translation>
    </message>
    <message>
        <source>Height of the top margin</source>
        <translation>Altezza del margine</translation>
    </message>
    <message>
        <source>lines</source>
        <translation>righe</translation>
    </message>
    <message>
        <source>Header lines</source>
        <translation>Righe di intestazione</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Azienda</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Cliente</translation>
    </message>
    <message>
        <source>Delivery address</source>
        <translation>Indirizzo di consegna</translation>
    </message>
    <message>
        <source>Billing address</source>
        <translation>Indirizzo di fatturazione</translation>
    </message>
    <message>
        <source>Telephone</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <source>Licence number</source>
        <translation>Partita IVA</translation>
    </message>
    <message>
        <source>Fiscal code</source>
        <translation>Codice fiscale</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Credito</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Ora</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tavolo</translation>
    </message>
    <message>
        <source>Waiter</source>
        <translation>Cameriere</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Note</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>copies</source>
        <translation>copie</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
    <message>
        <source>Open the cash drawer</source>
        <translation>Apri il cassetto</translation>
    </message>
    <message>
        <source>Rows per page</source>
        <translation>Righe per pagina</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>righe</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Cartella</translation>
    </message>
    <message>
        <source>Translation file</source>
        <translation>File di traduzione</translation>
    </message>
    <message>
        <source>Lowest level</source>
        <translation>Livello minimo</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Database name</source>
        <translation>Nome del database</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utente</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Host</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Folder of the programs</source>
        <translation>Cartella dei programmi</translation>
    </message>
    <message>
        <source>Logo picture</source>
        <translation>Immagine del logo</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Intestazione</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message>
        <source>Without effect</source>
        <translation>Senza effetto</translation>
    </message>
    <message>
        <source>You have no permission to change this file.</source>
        <translation>Non hai il permesso di modificare questo file.</translation>
    </message>
    <message>
        <source>Its folder cannot be made: a file is in the way.</source>
        <translation>La cartella non si può creare: c’è un file al suo posto.</translation>
    </message>
    <message>
        <source>You have no permission to write in its folder.</source>
        <translation>Non hai il permesso di scrivere nella sua cartella.</translation>
    </message>
    <message>
        <source>Restaurant</source>
        <translation>Ristorante</translation>
    </message>
    <message>
        <source>Kitchen tickets with table and waiter, bills and receipts.</source>
        <translation>Comande con tavolo e cameriere, preconti e ricevute.</translation>
    </message>
    <message>
        <source>Bar</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Short receipts with date and time; the drawer opens.</source>
        <translation>Ricevute brevi con data e ora; il cassetto si apre.</translation>
    </message>
    <message>
        <source>Shop</source>
        <translation>Negozio</translation>
    </message>
    <message>
        <source>Receipts without tables, and invoices and delivery notes for customers.</source>
        <translation>Ricevute senza tavoli, fatture e documenti di trasporto per i clienti.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no key; a key is two or more names of letters, digits, &apos;_&apos; and &apos;-&apos;, with dots between</source>
        <translation>«%1» non è una chiave; una chiave è fatta di due o più nomi di lettere, cifre, «_» e «-», separati da punti</translation>
    </message>
    <message>
        <source>a value cannot hold &apos;%1&apos;; leave it out</source>
        <translation>un valore non può contenere «%1»; toglilo</translation>
    </message>
    <message>
        <source>a value has room for %1 bytes, this one has %2; shorten it</source>
        <translation>un valore può avere al massimo %1 byte, questo ne ha %2; accorcialo</translation>
    </message>
    <message>
        <source>give a whole number from 0 to %1</source>
        <translation>serve un numero intero da 0 a %1</translation>
    </message>
    <message>
        <source>give true or false, in small letters</source>
        <translation>serve true o false, in minuscolo</translation>
    </message>
    <message>
        <source>give one of %1</source>
        <translation>serve uno di questi: %1</translation>
    </message>
    <message>
        <source>give %1</source>
        <translation>serve %1</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>%1 is not set</source>
        <translation>%1 non è impostato</translation>
    </message>
    <message>
        <source>%1, counts as %2</source>
        <translation>%1, vale come %2</translation>
    </message>
    <message>
        <source>%1; when missing: %2</source>
        <translation>%1; se manca: %2</translation>
    </message>
    <message>
        <source>read by: %1</source>
        <translation>letto da: %1</translation>
    </message>
    <message>
        <source>consulted by no print method</source>
        <translation>non usato da nessun metodo di stampa</translation>
    </message>
    <message>
        <source>consulted by: %1</source>
        <translation>usato da: %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config list&quot; lists the settings that programs read</source>
        <translation>«palvestrin config list» elenca le impostazioni che i programmi leggono</translation>
    </message>
    <message>
        <source>the block %1 is never looked into: only the first one of a file is</source>
        <translation>il blocco %1 non viene mai letto: si legge solo il primo di un file</translation>
    </message>
    <message>
        <source>move it to the front, and what is there into it</source>
        <translation>spostalo all’inizio, e mettici dentro ciò che c’è ora</translation>
    </message>
    <message>
        <source>move its settings into the first block</source>
        <translation>sposta le sue impostazioni nel primo blocco</translation>
    </message>
    <message>
        <source>no program looks into the block %1</source>
        <translation>nessun programma legge il blocco %1</translation>
    </message>
    <message>
        <source>it belongs into the block &quot;%1&quot;</source>
        <translation>va nel blocco «%1»</translation>
    </message>
    <message>
        <source>the block %1 is empty, which is the same as none</source>
        <translation>il blocco %1 è vuoto, come se non ci fosse</translation>
    </message>
    <message>
        <source>%1 stands outside the blocks, where no program looks</source>
        <translation>%1 sta fuori dai blocchi, dove nessun programma legge</translation>
    </message>
    <message>
        <source>move it into a block of the block &quot;%1&quot;</source>
        <translation>spostalo in un blocco del blocco «%1»</translation>
    </message>
    <message>
        <source>no program reads %1</source>
        <translation>nessun programma legge %1</translation>
    </message>
    <message>
        <source>a name has no dots: put %1 into the block %2</source>
        <translation>un nome non ha punti: metti %1 nel blocco %2</translation>
    </message>
    <message>
        <source>it belongs into a block, such as %1</source>
        <translation>va in un blocco, come %1</translation>
    </message>
    <message>
        <source>did you mean %1?</source>
        <translation>intendevi %1?</translation>
    </message>
    <message>
        <source>%1 is given twice: this value %2 does not count, the one in line %3 does</source>
        <translation>%1 compare due volte: questo valore %2 non conta, conta quello alla riga %3</translation>
    </message>
    <message>
        <source>remove one of them</source>
        <translation>togline uno</translation>
    </message>
    <message>
        <source>on the paper &quot;%1&quot;, %2 and %3 more take %4 of %5 characters: %6</source>
        <translation>sulla carta «%1», %2 e altri %3 occupano %4 di %5 caratteri: %6</translation>
    </message>
    <message>
        <source>descriptions are not cut, and run over the edge</source>
        <translation>le descrizioni non sono tagliate ed escono dal bordo</translation>
    </message>
    <message>
        <source>nothing is left for the description</source>
        <translation>non resta nulla per la descrizione</translation>
    </message>
    <message>
        <source>make the paper wider or the columns narrower</source>
        <translation>allarga la carta o stringi le colonne</translation>
    </message>
    <message>
        <source>%1 does nothing while %2 is off</source>
        <translation>%1 non fa nulla finché %2 è disattivato</translation>
    </message>
    <message>
        <source>set %1 to &quot;true&quot;, or take this one out</source>
        <translation>imposta %1 su «true», o togli questo</translation>
    </message>
    <message>
        <source>%1 changes nothing on paper</source>
        <translation>%1 non cambia nulla sulla carta</translation>
    </message>
    <message>
        <source>none of the documents of this block asks for it</source>
        <translation>nessun documento di questo blocco lo usa</translation>
    </message>
    <message>
        <source>%1 is no sensible value for %2</source>
        <translation>%1 non è un valore valido per %2</translation>
    </message>
    <message>
        <source>%1 counts as %2 for %3</source>
        <translation>%1 vale come %2 per %3</translation>
    </message>
    <message>
        <source>Kitchen ticket</source>
        <translation>Comanda</translation>
    </message>
    <message>
        <source>Bill</source>
        <translation>Preconto</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Ricevuta</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Fattura</translation>
    </message>
    <message>
        <source>Delivery note</source>
        <translation>Documento di trasporto</translation>
    </message>
    <message>
        <source>Fiscal receipt</source>
        <translation>Scontrino fiscale</translation>
    </message>
    <message>
        <source>Empty document</source>
        <translation>Documento vuoto</translation>
    </message>
    <message>
        <source>Summary receipt</source>
        <translation>Ricevuta riepilogativa</translation>
    </message>
    <message>
        <source>Summary invoice</source>
        <translation>Fattura riepilogativa</translation>
    </message>
    <message>
        <source>Summary fiscal receipt</source>
        <translation>Scontrino fiscale riepilogativo</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapporto</translation>
    </message>
    <message>
        <source>List of items sold</source>
        <translation>Elenco del venduto</translation>
    </message>
    <message>
        <source>Statement of account</source>
        <translation>Estratto conto</translation>
    </message>
    <message>
        <source>characters of the quantity column</source>
        <translation>caratteri della colonna della quantità</translation>
    </message>
    <message>
        <source>characters of the unit price column, and of the amount in a statement of account</source>
        <translation>caratteri della colonna del prezzo unitario, e dell’importo in un estratto conto</translation>
    </message>
    <message>
        <source>characters of the line total column</source>
        <translation>caratteri della colonna dell’importo della riga</translation>
    </message>
    <message>
        <source>characters of a line</source>
        <translation>caratteri di una riga</translation>
    </message>
    <message>
        <source>rows of a page; a receipt printer fills up the last one</source>
        <translation>righe di una pagina; una stampante di scontrini completa l’ultima</translation>
    </message>
    <message>
        <source>no effect: each document has its own layout</source>
        <translation>nessun effetto: ogni documento ha il suo aspetto</translation>
    </message>
    <message>
        <source>print the top margin</source>
        <translation>stampa il margine superiore</translation>
    </message>
    <message>
        <source>print the free header lines</source>
        <translation>stampa le righe libere di intestazione</translation>
    </message>
    <message>
        <source>print the logo, on a receipt printer</source>
        <translation>stampa il logo, su una stampante di scontrini</translation>
    </message>
    <message>
        <source>print the company&apos;s lines</source>
        <translation>stampa le righe dell’azienda</translation>
    </message>
    <message>
        <source>print the delivery address, with printCustomer</source>
        <translation>stampa l’indirizzo di consegna, con printCustomer</translation>
    </message>
    <message>
        <source>print the billing address, with printCustomer</source>
        <translation>stampa l’indirizzo di fatturazione, con printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s telephone, with printCustomer</source>
        <translation>stampa il telefono del cliente, con printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s date</source>
        <translation>stampa la data dell’ordine</translation>
    </message>
    <message>
        <source>print the order&apos;s time</source>
        <translation>stampa l’ora dell’ordine</translation>
    </message>
    <message>
        <source>print the order&apos;s table</source>
        <translation>stampa il tavolo dell’ordine</translation>
    </message>
    <message>
        <source>print the customer block</source>
        <translation>stampa il blocco del cliente</translation>
    </message>
    <message>
        <source>print the customer&apos;s license number, with printCustomer</source>
        <translation>stampa la partita IVA del cliente, con printCustomer</translation>
    </message>
    <message>
        <source>print the customer&apos;s fiscal code, with printCustomer</source>
        <translation>stampa il codice fiscale del cliente, con printCustomer</translation>
    </message>
    <message>
        <source>print the order&apos;s credit</source>
        <translation>stampa il credito dell’ordine</translation>
    </message>
    <message>
        <source>print the order&apos;s waiter</source>
        <translation>stampa il cameriere dell’ordine</translation>
    </message>
    <message>
        <source>print the order&apos;s note</source>
        <translation>stampa le note dell’ordine</translation>
    </message>
    <message>
        <source>open the drawer of a receipt printer, once before the first receipt</source>
        <translation>apre il cassetto di una stampante di scontrini, una volta prima della prima ricevuta</translation>
    </message>
    <message>
        <source>empty lines on top, with printGeometry</source>
        <translation>righe vuote in alto, con printGeometry</translation>
    </message>
    <message>
        <source>characters of an item&apos;s name that go to the register</source>
        <translation>caratteri del nome di un articolo che vanno al registratore di cassa</translation>
    </message>
    <message>
        <source>number of copies that a receipt printer prints, 99 at most</source>
        <translation>numero di copie che una stampante di scontrini stampa, al massimo 99</translation>
    </message>
    <message>
        <source>directory of the translation files</source>
        <translation>cartella dei file di traduzione</translation>
    </message>
    <message>
        <source>translation file, joined to basedir without a separator; &quot;/&quot; stands for /palvestrin_ and the locale&apos;s name</source>
        <translation>file di traduzione, unito a basedir senza separatore; «/» sta per /palvestrin_ e il nome della lingua</translation>
    </message>
    <message>
        <source>least level written: DEBUG, INFO, WARNING, ERROR or FATAL, in any case</source>
        <translation>livello minimo scritto: DEBUG, INFO, WARNING, ERROR o FATAL, anche in minuscolo</translation>
    </message>
    <message>
        <source>directory of the log file</source>
        <translation>cartella del file di registro</translation>
    </message>
    <message>
        <source>name of the log file</source>
        <translation>nome del file di registro</translation>
    </message>
    <message>
        <source>APPEND to the log file or OVERWRITE it, in any case</source>
        <translation>APPEND aggiunge al file di registro, OVERWRITE lo sovrascrive, anche in minuscolo</translation>
    </message>
    <message>
        <source>database name</source>
        <translation>nome del database</translation>
    </message>
    <message>
        <source>database user</source>
        <translation>utente del database</translation>
    </message>
    <message>
        <source>database password</source>
        <translation>password del database</translation>
    </message>
    <message>
        <source>database host</source>
        <translation>server del database</translation>
    </message>
    <message>
        <source>directory of the application&apos;s programs; a &quot;/&quot; and the name follow</source>
        <translation>cartella dei programmi dell’applicazione; seguono «/» e il nome</translation>
    </message>
    <message>
        <source>picture file (PBM) that a receipt printer prints for the logo</source>
        <translation>file di immagine (PBM) che una stampante di scontrini stampa come logo</translation>
    </message>
    <message>
        <source>no translation: English labels</source>
        <translation>nessuna traduzione: etichette in inglese</translation>
    </message>
    <message>
        <source>the root directory</source>
        <translation>la cartella radice</translation>
    </message>
    <message>
        <source>no file can be opened: no log</source>
        <translation>nessun file si può aprire: nessun registro</translation>
    </message>
    <message>
        <source>no log</source>
        <translation>nessun registro</translation>
    </message>
    <message>
        <source>the picture in the printer&apos;s own memory</source>
        <translation>l’immagine nella memoria della stampante</translation>
    </message>
    <message>
        <source>32, the printer&apos;s own width; the same for 0</source>
        <translation>32, la larghezza della stampante; lo stesso per 0</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivato</translation>
    </message>
    <message>
        <source>printing</source>
        <translation>stampa</translation>
    </message>
    <message>
        <source>start-up</source>
        <translation>avvio</translation>
    </message>
    <message>
        <source>logger</source>
        <translation>registro</translation>
    </message>
    <message>
        <source>database</source>
        <translation>database</translation>
    </message>
    <message>
        <source>utilities</source>
        <translation>utilità</translation>
    </message>
    <message>
        <source>receipt printer</source>
        <translation>stampante di scontrini</translation>
    </message>
    <message>
        <source>character</source>
        <translation>carattere</translation>
    </message>
    <message>
        <source>line</source>
        <translation>riga</translation>
    </message>
    <message>
        <source>copy</source>
        <translation>copia</translation>
    </message>
    <message>
        <source>row</source>
        <translation>riga</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vuoto</translation>
    </message>
    <message>
        <source>the program %1 is not installed; install the package %2</source>
        <translation>il programma %1 non è installato; installa il pacchetto %2</translation>
    </message>
    <message>
        <source>the text form has no room for &apos;;&apos; and &apos;&quot;&apos;, characters outside Latin-1, and more than 2044 bytes</source>
        <translation>la forma testuale non può contenere «;» e «&quot;», caratteri fuori da Latin-1 e più di 2044 byte</translation>
    </message>
    <message>
        <source>the XML form has no room for pairs outside the first block, names that are no XML names, and &apos;&quot;&apos;, &apos;&lt;&apos;, &apos;&amp;&apos; and line breaks in values</source>
        <translation>la forma XML non può contenere coppie fuori dal primo blocco, nomi che non sono nomi XML, e «&quot;», «&lt;», «&amp;» e interruzioni di riga nei valori</translation>
    </message>
    <message>
        <source>it is no regular file; give one</source>
        <translation>non è un file normale; serve un file normale</translation>
    </message>
    <message>
        <source>nothing is found in an XML file that begins with a declaration or a remark; remove what stands before the first element</source>
        <translation>in un file XML che inizia con una dichiarazione o un commento non si trova nulla; togli ciò che sta prima del primo elemento</translation>
    </message>
    <message>
        <source>elements nest deeper than %1</source>
        <translation>gli elementi sono annidati a più di %1 livelli</translation>
    </message>
    <message>
        <source>%1; nothing is found in XML that is not well-formed</source>
        <translation>%1; in un XML malformato non si trova nulla</translation>
    </message>
    <message>
        <source>&quot;%1&quot; would not survive: %2</source>
        <translation>«%1» andrebbe perso: %2</translation>
    </message>
    <message>
        <source>the link leads to no file; mend or remove it</source>
        <translation>il collegamento non porta a nessun file; correggilo o toglilo</translation>
    </message>
    <message>
        <source>the file may not be written</source>
        <translation>il file non si può scrivere</translation>
    </message>
    <message>
        <source>its folder cannot be made</source>
        <translation>la cartella non si può creare</translation>
    </message>
    <message>
        <source>another program is writing this file; try again when it is done</source>
        <translation>un altro programma sta scrivendo questo file; riprova quando ha finito</translation>
    </message>
    <message>
        <source>%1 cannot be opened (%2)</source>
        <translation>%1 non si può aprire (%2)</translation>
    </message>
    <message>
        <source>it cannot be locked (%1)</source>
        <translation>non si può bloccare (%1)</translation>
    </message>
    <message>
        <source>it belongs to another user or group, and would not any more; do this as its owner</source>
        <translation>appartiene a un altro utente o gruppo, e non sarebbe più così; fallo come proprietario</translation>
    </message>
    <message>
        <source>%1; the file is unchanged</source>
        <translation>%1; il file è rimasto com’era</translation>
    </message>
    <message>
        <source>%1 between a block&apos;s name and its brace</source>
        <translation>%1 tra il nome di un blocco e la sua graffa</translation>
    </message>
    <message>
        <source>%1, which belongs to no setting</source>
        <translation>%1, che non appartiene a nessuna impostazione</translation>
    </message>
    <message>
        <source>%1 between a closing brace and the next &quot;;&quot; (is one missing?)</source>
        <translation>%1 tra una graffa chiusa e il «;» seguente (ne manca uno?)</translation>
    </message>
    <message>
        <source>block %1 without a brace</source>
        <translation>il blocco %1 senza graffa</translation>
    </message>
    <message>
        <source>the end of %1: a name has room for %2 bytes, blanks in front included</source>
        <translation>la fine di %1: un nome può avere al massimo %2 byte, compresi gli spazi iniziali</translation>
    </message>
    <message>
        <source>blocks nested deeper than %1, and everything behind</source>
        <translation>i blocchi annidati a più di %1 livelli, e tutto ciò che segue</translation>
    </message>
    <message>
        <source>block %1: only the first top-level block is read and written</source>
        <translation>il blocco %1: si legge e si scrive solo il primo blocco esterno</translation>
    </message>
    <message>
        <source>empty block %1</source>
        <translation>il blocco vuoto %1</translation>
    </message>
    <message>
        <source>this value of %1: line %2 gives another</source>
        <translation>questo valore di %1: la riga %2 ne dà un altro</translation>
    </message>
    <message>
        <source>the quotes inside the value of %1 (is a &quot;;&quot; missing?)</source>
        <translation>le virgolette nel valore di %1 (manca un «;»?)</translation>
    </message>
    <message>
        <source>the end of the value of %1: a value has room for %2 bytes</source>
        <translation>la fine del valore di %1: un valore può avere al massimo %2 byte</translation>
    </message>
    <message>
        <source>everything behind this brace, which closes no block</source>
        <translation>tutto ciò che segue questa graffa, che non chiude nessun blocco</translation>
    </message>
    <message>
        <source>the remark &quot;%1&quot;</source>
        <translation>il commento «%1»</translation>
    </message>
    <message>
        <source>the text &quot;%1&quot;</source>
        <translation>il testo «%1»</translation>
    </message>
    <message>
        <source>the processing instruction &quot;%1&quot;</source>
        <translation>l’istruzione di elaborazione «%1»</translation>
    </message>
    <message>
        <source>the document type</source>
        <translation>il tipo di documento</translation>
    </message>
    <message>
        <source>the entity &quot;%1&quot;</source>
        <translation>l’entità «%1»</translation>
    </message>
    <message>
        <source>the XML declaration</source>
        <translation>la dichiarazione XML</translation>
    </message>
    <message>
        <source>this is no configuration but %1</source>
        <translation>questa non è una configurazione ma %1</translation>
    </message>
    <message>
        <source>&quot;palvestrin config set&quot; begins a new file</source>
        <translation>«palvestrin config set» inizia un nuovo file</translation>
    </message>
    <message>
        <source>XML, and the programs read this file as text</source>
        <translation>XML, e i programmi leggono questo file come testo</translation>
    </message>
    <message>
        <source>&quot;palvestrin config convert&quot; makes it text</source>
        <translation>«palvestrin config convert» lo trasforma in testo</translation>
    </message>
    <message>
        <source>belongs to no setting and is dropped</source>
        <translation>non appartiene a nessuna impostazione e viene ignorato</translation>
    </message>
    <message>
        <source>the block %1 has no &quot;{&quot;: everything behind its name is dropped</source>
        <translation>il blocco %1 non ha «{»: tutto ciò che segue il nome viene ignorato</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind its name and the &quot;:&quot;</source>
        <translation>metti un «{» dopo il nome e il «:»</translation>
    </message>
    <message>
        <source>the block %1 is never closed</source>
        <translation>il blocco %1 non viene mai chiuso</translation>
    </message>
    <message>
        <source>put &quot;};&quot; where it ends</source>
        <translation>metti «};» dove finisce</translation>
    </message>
    <message>
        <source>stands between a block&apos;s name and its &quot;{&quot; and is dropped</source>
        <translation>sta tra il nome di un blocco e il suo «{» e viene ignorato</translation>
    </message>
    <message>
        <source>%1 is lost: the &quot;:&quot; of the remark in line %2 drops everything up to the next &quot;{&quot;</source>
        <translation>%1 va perso: il «:» del commento alla riga %2 elimina tutto fino al prossimo «{»</translation>
    </message>
    <message>
        <source>take the remark out; this form of file has no remarks</source>
        <translation>togli il commento; questo tipo di file non ha commenti</translation>
    </message>
    <message>
        <source>%1 is lost: the block %2 in line %3 has no &quot;{&quot; of its own</source>
        <translation>%1 va perso: il blocco %2 alla riga %3 non ha un suo «{»</translation>
    </message>
    <message>
        <source>put a &quot;{&quot; behind the &quot;:&quot; of that block</source>
        <translation>metti un «{» dopo il «:» di quel blocco</translation>
    </message>
    <message>
        <source>a block</source>
        <translation>un blocco</translation>
    </message>
    <message>
        <source>this remark is read as %1 of an odd name, which nobody looks for</source>
        <translation>questo commento è letto come %1 dal nome strano, che nessuno cerca</translation>
    </message>
    <message>
        <source>this form of file has no remarks</source>
        <translation>questo tipo di file non ha commenti</translation>
    </message>
    <message>
        <source>a setting</source>
        <translation>un’impostazione</translation>
    </message>
    <message>
        <source>the &quot;}&quot; in the remark %1 ends the block here</source>
        <translation>la «}» nel commento %1 chiude qui il blocco</translation>
    </message>
    <message>
        <source>take it out, or put in the &quot;=&quot; or &quot;;&quot; that it lacks</source>
        <translation>toglilo, o aggiungi il «=» o il «;» che manca</translation>
    </message>
    <message>
        <source>%1 is skipped: the &quot;;&quot; behind the &quot;}&quot; in line %2 is missing</source>
        <translation>%1 è saltato: manca il «;» dopo la «}» alla riga %2</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that brace</source>
        <translation>metti un «;» dopo quella graffa</translation>
    </message>
    <message>
        <source>nothing from here on is read: the &quot;}&quot; in line %1 closes no block</source>
        <translation>da qui in poi non si legge nulla: la «}» alla riga %1 non chiude nessun blocco</translation>
    </message>
    <message>
        <source>nothing from here on is read: blocks nest deeper than %1</source>
        <translation>da qui in poi non si legge nulla: i blocchi sono annidati a più di %1 livelli</translation>
    </message>
    <message>
        <source>take that brace out</source>
        <translation>togli quella graffa</translation>
    </message>
    <message>
        <source>nothing of this file is read: %1</source>
        <translation>di questo file non si legge nulla: %1</translation>
    </message>
    <message>
        <source>nothing is found in an XML configuration that begins with a declaration or a remark</source>
        <translation>in una configurazione XML che inizia con una dichiarazione o un commento non si trova nulla</translation>
    </message>
    <message>
        <source>take out what stands in front of the first element</source>
        <translation>togli ciò che sta prima del primo elemento</translation>
    </message>
    <message>
        <source>%1 is text between elements, which sets nothing</source>
        <translation>%1 è testo tra gli elementi, che non imposta nulla</translation>
    </message>
    <message>
        <source>settings are attributes</source>
        <translation>le impostazioni sono attributi</translation>
    </message>
    <message>
        <source>a file of more than 1 MiB</source>
        <translation>un file di oltre 1 MiB</translation>
    </message>
    <message>
        <source>a binary file, or text in UTF-16</source>
        <translation>un file binario, o testo in UTF-16</translation>
    </message>
    <message>
        <source>XML with more than 1000 attributes in an element</source>
        <translation>XML con più di 1000 attributi in un elemento</translation>
    </message>
    <message>
        <source>an INI file</source>
        <translation>un file INI</translation>
    </message>
    <message>
        <source>text without a block &quot;palvestrin: {&quot;</source>
        <translation>testo senza un blocco «palvestrin: {»</translation>
    </message>
    <message>
        <source>the value of %1 is UTF-8, and is read as Latin-1: %2</source>
        <translation>il valore di %1 è UTF-8, e si legge come Latin-1: %2</translation>
    </message>
    <message>
        <source>save the file as Latin-1, or use &quot;palvestrin config set&quot;</source>
        <translation>salva il file in Latin-1, o usa «palvestrin config set»</translation>
    </message>
    <message>
        <source>%1 is read as part of the value of %2, whose &quot;;&quot; is missing</source>
        <translation>%1 è letto come parte del valore di %2, a cui manca il «;»</translation>
    </message>
    <message>
        <source>put a &quot;;&quot; behind that value</source>
        <translation>metti un «;» dopo quel valore</translation>
    </message>
    <message>
        <source>%1 is read as part of the remark in line %2, which goes on up to the next &quot;;&quot;</source>
        <translation>%1 è letto come parte del commento alla riga %2, che continua fino al prossimo «;»</translation>
    </message>
    <message>
        <source>the value of %1 has %2 bytes and is cut to %3</source>
        <translation>il valore di %1 ha %2 byte e viene tagliato a %3</translation>
    </message>
    <message>
        <source>is a &quot;;&quot; missing in it?</source>
        <translation>manca un «;»?</translation>
    </message>
    <message>
        <source>a quote inside the value of %1 vanishes: it is read as %2</source>
        <translation>una virgoletta nel valore di %1 sparisce: si legge %2</translation>
    </message>
    <message>
        <source>quotes stand around a value or nowhere</source>
        <translation>le virgolette stanno intorno a un valore o da nessuna parte</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>intendevi «%1»?</translation>
    </message>
    <message>
        <source>Existing log</source>
        <translation>Registro esistente</translation>
    </message>
    <message>
        <source>receipt printer, copy number</source>
        <translation>stampante di scontrini, numero di copie</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>never found: only the first top-level block is searched</source>
        <translation>mai trovata: si cerca solo nel primo blocco del file</translation>
    </message>
    <message>
        <source>no program reads this</source>
        <translation>nessun programma legge questa voce</translation>
    </message>
    <message>
        <source>no program reads this; did you mean %1?</source>
        <translation>nessun programma legge questa voce; intendevi %1?</translation>
    </message>
</context>
<context>
    <name>SettingsModel</name>
    <message>
        <source>Setting</source>
        <translation>Impostazione</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>It would never be found: the first block of the file is another.</source>
        <translation>Non verrebbe mai trovata: il primo blocco del file è un altro.</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>Modifica %1</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salva</translation>
    </message>
    <message>
        <source>&amp;Reload the file</source>
        <translation>&amp;Ricarica il file</translation>
    </message>
    <message>
        <source>Show a &amp;job of your own…</source>
        <translation>Mostra un tuo &amp;lavoro…</translation>
    </message>
    <message>
        <source>Save the &amp;paper as a picture…</source>
        <translation>Salva la carta come &amp;immagine…</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Ripeti</translation>
    </message>
    <message>
        <source>&amp;Copy the paper as text</source>
        <translation>&amp;Copia la carta come testo</translation>
    </message>
    <message>
        <source>&amp;Find a setting</source>
        <translation>&amp;Trova un’impostazione</translation>
    </message>
    <message>
        <source>Reset the &amp;setting</source>
        <translation>Ripristina l’&amp;impostazione</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Vista</translation>
    </message>
    <message>
        <source>&amp;Larger paper</source>
        <translation>Carta più &amp;grande</translation>
    </message>
    <message>
        <source>&amp;Smaller paper</source>
        <translation>Carta più &amp;piccola</translation>
    </message>
    <message>
        <source>&amp;Fit the paper</source>
        <translation>&amp;Adatta la carta</translation>
    </message>
    <message>
        <source>Go to the &amp;documents</source>
        <translation>Vai ai &amp;documenti</translation>
    </message>
    <message>
        <source>&amp;All keys</source>
        <translation>&amp;Tutte le chiavi</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>&amp;How it works</source>
        <translation>&amp;Come funziona</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Informazioni</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Begin with a preset</source>
        <translation>Inizia con un modello</translation>
    </message>
    <message>
        <source>%1[*] – Palvestrin Print</source>
        <translation>%1[*] – Palvestrin Print</translation>
    </message>
    <message>
        <source>About Palvestrin Print</source>
        <translation>Informazioni su Palvestrin Print</translation>
    </message>
    <message>
        <source>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Tickets, receipts and invoices of a restaurant or a shop, on the paper of its printers.&lt;/p&gt;</source>
        <translation>&lt;b&gt;Palvestrin Print %1&lt;/b&gt;&lt;p&gt;Comande, ricevute e fatture di un ristorante o di un negozio, sulla carta delle sue stampanti.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>ValueEditor</name>
    <message>
        <source>Default: %1</source>
        <translation>Predefinito: %1</translation>
    </message>
    <message>
        <source>Choose a folder…</source>
        <translation>Scegli una cartella…</translation>
    </message>
    <message>
        <source>Choose a file…</source>
        <translation>Scegli un file…</translation>
    </message>
    <message>
        <source>Show the password</source>
        <translation>Mostra la password</translation>
    </message>
</context>
</TS>

<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Num</source>
        <translatorcomment>Quantità; three columns.</translatorcomment>
        <translation>Qtà</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prezzo</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Importo</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translatorcomment>Not TOTALE: the device would put this very word in its place, after the columns were laid out, and the row would end a column short.</translatorcomment>
        <translation>SOMMA</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translatorcomment>The same words as on the summarised receipt, which prints them in Italian in every language.</translatorcomment>
        <translation>    Corrispettivo non pagato: </translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Ricevuta n.: </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Fattura n.:</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translatorcomment>Documento di trasporto.</translatorcomment>
        <translation>DDT n.:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Data:</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Ora:</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Tavolo:</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Cameriere:</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Note:</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Credito:</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENTE</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Telefono:</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>Partita IVA:</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>Codice fiscale:</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Imponibile</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Aliquota IVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>IVA</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RIEPILOGHI</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Dal: </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Al: </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translatorcomment>The bill that the guest sees before the receipt is a preconto.</translatorcomment>
        <translation>RIEPILOGO PRECONTI</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RIEPILOGO RICEVUTE</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RIEPILOGO FATTURE</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>RIEPILOGO DOC. ANNULLATI</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numero</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Progressivi</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Corrispettivo non pagato: </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Contanti: </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Carta di credito: </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Bancomat: </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Altro: </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translatorcomment>Aliquota; six columns.</translatorcomment>
        <translation>ALIQ.</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>IMPONIBILE</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>IMPOSTA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>IMPORTO</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMERO</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>Carried over</source>
        <translation>Riporto</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Nota credito</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Acconto</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Fattura</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Pagamento</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Ricevuta</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Rimborso</translation>
    </message>
</context>
<context>
    <name>HLibrary</name>
    <message>
        <source>PaperWindow</source>
        <translatorcomment>The caption of the window that asks for a new sheet.</translatorcomment>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Insert a new sheet</source>
        <translation>Inserire un nuovo foglio</translation>
    </message>
</context>
</TS>

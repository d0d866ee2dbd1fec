<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>QObject</name>
    <message>
        <source>Num</source>
        <translatorcomment>Quantité; three columns.</translatorcomment>
        <translation>Qté</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Prix</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Montant</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>TOTAL</translation>
    </message>
    <message>
        <source>    Amount not paid: </source>
        <translation>    Reste à payer : </translation>
    </message>
    <message>
        <source>Serial Number: </source>
        <translation>Reçu n° : </translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Facture n° :</translation>
    </message>
    <message>
        <source>Delivery Number:</source>
        <translation>Bon de livraison n° :</translation>
    </message>
    <message>
        <source>Date:</source>
        <translatorcomment>A plain blank before the colon, here and below: printers show a no-break space as a random sign.</translatorcomment>
        <translation>Date :</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>Heure :</translation>
    </message>
    <message>
        <source>Table:</source>
        <translation>Table :</translation>
    </message>
    <message>
        <source>Waiter:</source>
        <translation>Serveur :</translation>
    </message>
    <message>
        <source>Note:</source>
        <translation>Remarque :</translation>
    </message>
    <message>
        <source>Credit:</source>
        <translation>Crédit :</translation>
    </message>
    <message>
        <source>CUSTOMER</source>
        <translation>CLIENT</translation>
    </message>
    <message>
        <source>Telephone:</source>
        <translation>Téléphone :</translation>
    </message>
    <message>
        <source>License Number:</source>
        <translation>N° TVA :</translation>
    </message>
    <message>
        <source>Fiscal Code:</source>
        <translation>N° fiscal :</translation>
    </message>
    <message>
        <source>Taxable</source>
        <translation>Montant HT</translation>
    </message>
    <message>
        <source>TaxRate</source>
        <translation>Taux de TVA</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>TVA</translation>
    </message>
    <message>
        <source>SUMMARIES</source>
        <translation>RÉCAPITULATIFS</translation>
    </message>
    <message>
        <source>BeginDate: </source>
        <translation>Du : </translation>
    </message>
    <message>
        <source>EndDate: </source>
        <translation>Au : </translation>
    </message>
    <message>
        <source>PREFISCAL SUMMARY</source>
        <translatorcomment>The bill that the guest sees before the receipt.</translatorcomment>
        <translation>RÉCAPITULATIF DES ADDITIONS</translation>
    </message>
    <message>
        <source>RECEIPTS SUMMARY</source>
        <translation>RÉCAPITULATIF DES REÇUS</translation>
    </message>
    <message>
        <source>INVOICES SUMMARY</source>
        <translation>RÉCAPITULATIF DES FACTURES</translation>
    </message>
    <message>
        <source>CANCELLED DOC SUMMARY</source>
        <translation>DOCUMENTS ANNULÉS</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Serials</source>
        <translation>Numéros</translation>
    </message>
    <message>
        <source>Amount not paid: </source>
        <translation>Reste à payer : </translation>
    </message>
    <message>
        <source>Cash: </source>
        <translation>Espèces : </translation>
    </message>
    <message>
        <source>Credit Card: </source>
        <translation>Carte de crédit : </translation>
    </message>
    <message>
        <source>Bancomat: </source>
        <translation>Carte de débit : </translation>
    </message>
    <message>
        <source>Other: </source>
        <translation>Autres : </translation>
    </message>
    <message>
        <source>TAXRATE</source>
        <translation>TVA %</translation>
    </message>
    <message>
        <source>TAXABLE</source>
        <translation>HT</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>TVA</translation>
    </message>
    <message>
        <source>AMOUNT</source>
        <translation>TTC</translation>
    </message>
    <message>
        <source>SERIAL</source>
        <translation>NUMÉRO</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Solde</translation>
    </message>
    <message>
        <source>Carried over</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Credit note</source>
        <translation>Avoir</translation>
    </message>
    <message>
        <source>Deposit</source>
        <translation>Acompte</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>Paiement</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Reçu</translation>
    </message>
    <message>
        <source>Refund</source>
        <translation>Remboursement</translation>
    </message>
</context>
<context>
    <name>HLibrary</name>
    <message>
        <source>PaperWindow</source>
        <translatorcomment>The caption of the window that asks for a new sheet.</translatorcomment>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Insert a new sheet</source>
        <translation>Insérez une nouvelle feuille</translation>
    </message>
</context>
</TS>

Opened apartment.dxf
; drawing: samples/apartment.dxf
; options: --keep-going
; exit: 1
; Escape while the zone is selected is a failure like another: the command is over, with the dialog hidden.
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Block data extraction
  Label0: Block name:
  Label1:
  Frame2: Extracted data
    ListView2: 0 rows
        #
  BtnNew: [New]
  BtnSave: [Save]
  BtnErase: [Clear]
  BtnClose: [Close]
> BtnNew
[fmExtract] hidden
Select the bloc reference label to list :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: You have selected the bloc reference 'ARBRE'
  BtnSelect: [Start again]
  OKButton: [Reference zone]
  CancelButton: [Cancel]
> OKButton
[fmVnMessage] hidden
Select objects: esc
! Error -2147352567: Method failed: SelectOnScreen: broken off by the user
Command: LIST
References  Block
        16  PORTE_80
         3  PORTE_90
        10  FENETRE_120
         2  CHAISE
         0  TABLE_160
         2  ENSEMBLE_REPAS
         4  LIT_140
         2  CANAPE
         2  EVIER
         2  LAVABO
         2  BAIGNOIRE
         2  WC
         2  *U1
        17  ETIQUETTE_PIECE
         1  POTEAU
         1  NORD
         4  ARBRE
         1  CARTOUCHE
         0  _CLOSEDFILLED
and 3 without name or references (of dimensions and the like)
vorlane-console: line 9: esc: Error -2147352567: Method failed: SelectOnScreen: broken off by the user

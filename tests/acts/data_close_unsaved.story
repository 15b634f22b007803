Opened apartment.dxf
; drawing: samples/apartment.dxf
; language: fr
; options: --regional fr
; run: list_files.py
; The question at the close: No lets the table go. Yes and a cancelled file dialog brings the dialog back with the
; table unsaved; Yes and a file brings it back saved, and a last press closes it. In French.
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Extraction des données des blocs
  Label0: Nom du bloc :
  Label1:
  Frame2: Données extraites
    ListView2: 0 rows
        #
  BtnNew: [Nouveau]
  BtnSave: [Enregistrer]
  BtnErase: [Effacer]
  BtnClose: [Fermer]
> BtnNew
[fmExtract] hidden
Sélectionner l'étiquette à détailler :-1,3
+-- Vorlane 1.0: Selection de bloc (!)
|  L'objet selectionné n'est pas un bloc.
+-- [ok] [cancel]
> cancel
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> BtnClose
[fmExtract] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Extraction des données des blocs
  Label0: Nom du bloc :
  Label1:
  Frame2: Données extraites
    ListView2: 0 rows
        #
  BtnNew: [Nouveau]
  BtnSave: [Enregistrer]
  BtnErase: [Effacer]
  BtnClose: [Fermer]
> BtnNew
[fmExtract] hidden
Sélectionner l'étiquette à détailler :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: Vous avez selectionné le bloc 'ARBRE'
  BtnSelect: [Recommencer]
  OKButton: [Zone de reférence]
  CancelButton: [Annuler]
> BtnSelect
[fmVnMessage] hidden
Sélectionner l'étiquette à détailler :@242
[fmVnMessage] Vorlane 1.0 : Message (again)
> OKButton
[fmVnMessage] hidden
Select objects: all
184 found, 184 total
Select objects: 
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> show
  Label0: Nom du bloc :
  Label1: ARBRE
  Frame2: Données extraites
    ListView2: 4 rows
        # | N° | X insertion | Y insertion | Z insertion | Ech. X | Ech. Y | Ech. Z | Rotation | Calque | Couleur
      > 1 | 1 | 11 | -4,5 | 0 | 1,2 | 1,2 | 1,2 | 0,314159265358979 | JARDIN | 256
        2 | 2 | 17,2 | -1 | 0 | 0,8 | 0,8 | 0,8 | 0,20943951023932 | JARDIN | 256
        3 | 3 | 2 | -4,8 | 0 | 1 | 1 | 1 | 0,261799387799149 | JARDIN | 256
        4 | 4 | 5,5 | -4,6 | 0 | 0,9 | 0,9 | 0,9 | 0,235619449019234 | JARDIN | 256
  BtnNew: [Nouveau]
  BtnSave: [Enregistrer]
  BtnErase: [Effacer]
  BtnClose: [Fermer]
> BtnClose
+-- Vorlane 1.0
|  Les données actuelles n'ont pas été enrégistrées.
|  Voulez vous les enrégistrer?
+-- [yes] [no]
> no
[fmExtract] hidden
Command: VNEXTRACT
[fmExtract] Vorlane 1.0 : Extraction des données des blocs
  Label0: Nom du bloc :
  Label1:
  Frame2: Données extraites
    ListView2: 0 rows
        #
  BtnNew: [Nouveau]
  BtnSave: [Enregistrer]
  BtnErase: [Effacer]
  BtnClose: [Fermer]
> BtnNew
[fmExtract] hidden
Sélectionner l'étiquette à détailler :@242
[fmVnMessage] Vorlane 1.0 : Message
  Label1: Vous avez selectionné le bloc 'ARBRE'
  BtnSelect: [Recommencer]
  OKButton: [Zone de reférence]
  CancelButton: [Annuler]
> OKButton
[fmVnMessage] hidden
Select objects: all
184 found, 184 total
Select objects: 
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> BtnClose
+-- Vorlane 1.0
|  Les données actuelles n'ont pas été enrégistrées.
|  Voulez vous les enrégistrer?
+-- [yes] [no]
> yes
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> cancel
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> BtnClose
+-- Vorlane 1.0
|  Les données actuelles n'ont pas été enrégistrées.
|  Voulez vous les enrégistrer?
+-- [yes] [no]
> yes
[fmExtract] hidden
+-- Save as
|  Fichier texte séparateur tabulation (*.txt)
+-- [file PATH] [cancel]
> file arbres.txt
[fmExtract] Vorlane 1.0 : Extraction des données des blocs (again)
> BtnClose
[fmExtract] hidden
-- run list_files.py
apartment.dxf
arbres.txt
data
original-apartment.dxf
the drawing is as it was

Opened apartment.dxf
; drawing: samples/apartment.dxf
; copy: tools/autocad_check.lsp
; options: --regional en
; What the add-in asks of AutoCAD, asked of the desk: the lines that a log of AutoCAD is compared with.
Command: (load "autocad_check.lsp")
Command: VNCHECK

VNCHECK VL.Application = an object
VNCHECK a Lisp function = "VNCHECK"
VNCHECK AddLine = AcDbLine
VNCHECK line length = 5
VNCHECK line Perimeter = fails
VNCHECK line Delete = nil
VNCHECK InsertBlock, unknown block = fails
VNCHECK Blocks, neither layouts nor external = ( "PORTE_80" "PORTE_90" "FENETRE_120" "CHAISE" "TABLE_160" "ENSEMBLE_REPAS" "LIT_140" "CANAPE" "EVIER" "LAVABO" "BAIGNOIRE" "WC" "*U1" "ETIQUETTE_PIECE" "POTEAU" "NORD" "ARBRE" "CARTOUCHE" "*D2" "_CLOSEDFILLED" "*D3" "*D4" )
VNCHECK InsertBlock PORTE_90 = AcDbBlockReference
VNCHECK reference OBJECTNAME = "AcDbBlockReference"
VNCHECK reference NAME = "PORTE_90"
VNCHECK reference INSERTIONPOINT = ( 1 2 0 )
VNCHECK reference XSCALEFACTOR = 1
VNCHECK reference YSCALEFACTOR = 1
VNCHECK reference ZSCALEFACTOR = 1
VNCHECK reference ROTATION = 0.5
VNCHECK reference VISIBLE = -1
VNCHECK reference LAYER = "0"
VNCHECK reference COLOR = 256
VNCHECK reference HASATTRIBUTES = -1
VNCHECK reference put XSCALEFACTOR = nil
VNCHECK reference then XSCALEFACTOR = 2
VNCHECK reference put YSCALEFACTOR = nil
VNCHECK reference then YSCALEFACTOR = -1.5
VNCHECK reference put ZSCALEFACTOR = nil
VNCHECK reference then ZSCALEFACTOR = 1
VNCHECK reference put ROTATION = nil
VNCHECK reference then ROTATION = 1.25
VNCHECK reference put VISIBLE = nil
VNCHECK reference then VISIBLE = 0
VNCHECK reference put VISIBLE = nil
VNCHECK reference then VISIBLE = -1
VNCHECK reference put InsertionPoint = nil
VNCHECK reference then InsertionPoint = ( 3 4 5 )
VNCHECK reference GetAttributes = ( AcDbAttribute AcDbAttribute AcDbAttribute AcDbAttribute )
VNCHECK attribute TagString = "CODE"
VNCHECK attribute TextString = "?"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK attribute TagString = "PASSAGE"
VNCHECK attribute TextString = "90"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK attribute TagString = "COUPE_FEU"
VNCHECK attribute TextString = "néant"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK attribute TagString = "HUISSERIE"
VNCHECK attribute TextString = "bois"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK reference Update = nil
VNCHECK reference LENGTH = fails
VNCHECK reference AREA = fails
VNCHECK reference PERIMETER = fails
VNCHECK reference CIRCUMFERENCE = fails
VNCHECK reference Delete = nil
VNCHECK reference Name, deleted = fails
VNCHECK InsertBlock ETIQUETTE_PIECE = AcDbBlockReference
VNCHECK reference OBJECTNAME = "AcDbBlockReference"
VNCHECK reference NAME = "ETIQUETTE_PIECE"
VNCHECK reference INSERTIONPOINT = ( 1 2 0 )
VNCHECK reference XSCALEFACTOR = 1
VNCHECK reference YSCALEFACTOR = 1
VNCHECK reference ZSCALEFACTOR = 1
VNCHECK reference ROTATION = 0.5
VNCHECK reference VISIBLE = -1
VNCHECK reference LAYER = "0"
VNCHECK reference COLOR = 256
VNCHECK reference HASATTRIBUTES = -1
VNCHECK reference put XSCALEFACTOR = nil
VNCHECK reference then XSCALEFACTOR = 2
VNCHECK reference put YSCALEFACTOR = nil
VNCHECK reference then YSCALEFACTOR = -1.5
VNCHECK reference put ZSCALEFACTOR = nil
VNCHECK reference then ZSCALEFACTOR = 1
VNCHECK reference put ROTATION = nil
VNCHECK reference then ROTATION = 1.25
VNCHECK reference put VISIBLE = nil
VNCHECK reference then VISIBLE = 0
VNCHECK reference put VISIBLE = nil
VNCHECK reference then VISIBLE = -1
VNCHECK reference put InsertionPoint = nil
VNCHECK reference then InsertionPoint = ( 3 4 5 )
VNCHECK reference GetAttributes = ( AcDbAttribute AcDbAttribute AcDbAttribute )
VNCHECK attribute TagString = "NUMERO"
VNCHECK attribute TextString = "00"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK attribute TagString = "NOM"
VNCHECK attribute TextString = "Pièce"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK attribute TagString = "SURFACE"
VNCHECK attribute TextString = "0,00 m²"
VNCHECK attribute put TextString = nil
VNCHECK attribute then TextString = "Porte 7"
VNCHECK reference Update = nil
VNCHECK reference LENGTH = fails
VNCHECK reference AREA = fails
VNCHECK reference PERIMETER = fails
VNCHECK reference CIRCUMFERENCE = fails
VNCHECK reference Delete = nil
VNCHECK reference Name, deleted = fails
VNCHECK InsertBlock CHAISE = AcDbBlockReference
VNCHECK reference OBJECTNAME = "AcDbBlockReference"
VNCHECK reference NAME = "CHAISE"
VNCHECK reference INSERTIONPOINT = ( 1 2 0 )
VNCHECK reference XSCALEFACTOR = 1
VNCHECK reference YSCALEFACTOR = 1
VNCHECK reference ZSCALEFACTOR = 1
VNCHECK reference ROTATION = 0.5
VNCHECK reference VISIBLE = -1
VNCHECK reference LAYER = "0"
VNCHECK reference COLOR = 256
VNCHECK reference HASATTRIBUTES = 0
VNCHECK reference put XSCALEFACTOR = nil
VNCHECK reference then XSCALEFACTOR = 2
VNCHECK reference put YSCALEFACTOR = nil
VNCHECK reference then YSCALEFACTOR = -1.5
VNCHECK reference put ZSCALEFACTOR = nil
VNCHECK reference then ZSCALEFACTOR = 1
VNCHECK reference put ROTATION = nil
VNCHECK reference then ROTATION = 1.25
VNCHECK reference put VISIBLE = nil
VNCHECK reference then VISIBLE = 0
VNCHECK reference put VISIBLE = nil
VNCHECK reference then VISIBLE = -1
VNCHECK reference put InsertionPoint = nil
VNCHECK reference then InsertionPoint = ( 3 4 5 )
VNCHECK reference GetAttributes = nil
VNCHECK reference Update = nil
VNCHECK reference LENGTH = fails
VNCHECK reference AREA = fails
VNCHECK reference PERIMETER = fails
VNCHECK reference CIRCUMFERENCE = fails
VNCHECK reference Delete = nil
VNCHECK reference Name, deleted = fails
VNCHECK SelectionSets Count = 0
VNCHECK SelectionSets Add = an object
VNCHECK SelectionSets Add, again = fails
VNCHECK set Clear = nil
VNCHECK set Select PORTE_80 = nil
VNCHECK set Count = 16
VNCHECK set Clear = nil
VNCHECK set Select porte_80 = nil
VNCHECK set Count = 16
VNCHECK set Clear = nil
VNCHECK set Select NO SUCH BLOCK = nil
VNCHECK set Count = 0Select objects: all
184 found, 184 total
Select objects: 

VNCHECK set SelectOnScreen = nil
VNCHECK set Count, on screen = 16
VNCHECK set Item 0 = AcDbBlockReference
VNCHECK set Item, beyond the end = fails
VNCHECK set Delete = nil
Pick a block reference: @242

VNCHECK GetEntity = nil
VNCHECK GetEntity's entity = AcDbBlockReference
A point: 1,2

VNCHECK GetPoint, no base = ( 1 2 0 )
An angle: 45

VNCHECK GetAngle = 0.785398
VNCHECK end

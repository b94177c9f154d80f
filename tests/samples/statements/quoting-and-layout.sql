-- apostrophe-in-a-text
select Company from Customers where City = 'King''s Lynn'

-- apostrophe-first-in-a-text
select Company, City from Customers where City = '''s-Hertogenbosch'

-- apostrophe-like
select LastName from Employees where LastName like '%''%'

-- apostrophes-only
-- empty
select Company from Customers where City = ''''''

-- empty-text
-- empty
select Company from Customers where City = ''

-- empty-text-unequal
select SupplierName from Suppliers where City <> ''

-- percent-in-a-text
select ProductName from Products where ProductName = 'Linseed Oil 100% Pure'

-- semicolon-and-comment-in-a-text
-- empty
select Company from Customers where Notes = 'a; -- b /* c */ and "d"'

-- semicolon-in-a-text
select Company, Notes from Customers where Notes like '%O''Brien; don''t%'

-- keywords-in-a-text
select Company from Customers where City <> 'Linz and Lyon or (not null' and CountryCode = 'CH'

-- double-quote-in-a-text
select ProductName from Products where ProductName = 'Tool Box 20"' or ProductName like '%1/2"'

-- column-with-a-blank
select ProductName, "Pack Size" from Products where "Pack Size" > 6

-- column-with-a-blank-and-table
select p."Pack Size", count(*) from Products p group by p."Pack Size"

-- everything-in-double-quotes
SELECT "Customers"."Company", "Customers"."City" FROM "Customers" WHERE "Customers"."CountryCode" = 'IE'

-- names-in-square-brackets
select [ProductName], [Pack Size] from [Products] where [Pack Size] = 2

-- names-in-back-quotes
select `Quantity`, `OrderID` from `Order Lines` where `Quantity` >= 60

-- double-quotes-round-a-value
-- No column has that name, so SQLite takes it as a text.
select Company from Customers where City = "Leeds"

-- double-quotes-round-a-column
-- Looks like a value but is a column.
select OrderID from Orders where "RequiredDate" = "OrderDate" or Freight = 94.5 and "Status" = "S"

-- value-that-names-a-column
select Company from Customers where Company <> "City" and CountryCode = 'SE'

-- alias-with-blanks
-- ordered
select Company as "Name of the customer", City as 'Town' from Customers where CountryCode = 'CZ' order by "Name of the customer"

-- alias-without-as
select Company Firm, City Town from Customers where Segment = 'T' and CountryCode <> 'DE'

-- alias-in-other-letters
select City "Ort – Größe", count(*) Anzahl from Customers where CountryCode = 'DE' group by City

-- letters-of-many-lands
select Company, City from Customers where City in ('Łódź', 'Київ', '東京', 'Göteborg') or Company like '%Ø%'

-- letters-like
select FirstName, LastName from Employees where LastName like '高%' or FirstName like 'Łu%' or LastName like '%ф%'

-- other-letters-in-other-case
-- SQLite folds the case of ASCII letters alone.
-- empty
select Company from Customers where City like 'łódź'

-- comment-to-the-end-of-the-line
select Company -- the name of the firm
from Customers -- all of them
where City = 'Linz' -- or City = 'Graz'

-- comment-in-the-middle
select Company /* , City */ from Customers /* where City = 'Linz' */ where CountryCode = 'AT' /* or 1 = 1 */

-- comment-in-front

-- written by the report generator, do not edit
/* for the
   monthly meeting */ select OrderID from Orders where Status = 'H'

-- comment-hides-a-condition
select Company, City
from Customers
where CountryCode = 'AT'
--  and City = 'Linz'
  and Segment = 'R'

-- comment-between-and-its-value
select ProductName from Products where CategoryID /* of the garden */ = /* see the list */ 3

-- comment-with-an-apostrophe
select ShipperName -- isn't it
from Shippers -- that's it

-- keywords-in-any-case
SeLeCt Company FROM Customers wHeRe City Like 'M%' aNd nOt Segment In ('R') oRdEr bY Company

-- names-in-any-case
select COMPANY, customers.city from CUSTOMERS where CuStOmErS.countrycode = 'FR'

-- all-in-one-line-no-blanks
select Company,City from Customers where(City='Linz')or(City='Graz'and(Segment='R'))

-- one-word-a-line
select
Company
,
City
from
Customers
where
City
=
'Bristol'
or
City
like
'Co%'

-- tabs-and-many-blanks
	select		ProductName ,   ListPrice	from   Products
	where	ListPrice
		>    120

-- semicolon-at-the-end
select CategoryName from Categories where CategoryID > 6;

-- line-break-in-a-text
-- empty
select Company from Customers where Notes like '%ring
before%'

-- commas-in-front
SELECT
    c.Company
  , c.City
  , c.PostCode
FROM
    Customers c
WHERE
    c.CountryCode = 'NL'
    AND c.PostCode IS NOT NULL
ORDER BY
    c.PostCode
  , c.Company

-- keyword-as-an-alias
select count(*) as "order", Status as "group" from Orders as "from" group by "group"

-- point-with-blanks
select Customers . Company from Customers where Customers . City = 'Verona'

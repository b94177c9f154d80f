-- starts-with
select Company from Customers where Company like 'M%'

-- ends-with
select Company, City from Customers where Company like '%GmbH'

-- contains-a-word
select ProductName from Products where ProductName like '%Saw%'

-- contains-in-wrong-case
select ProductName from Products where ProductName like '%SAW%'

-- like-with-a-hole
select ProductName from Products where ProductName like 'W%L%'

-- like-one-character
select Company, City from Customers where City like 'L_nz'

-- like-without-wildcards
select Company from Customers where City like 'linz'

-- like-anything-given
-- Unknown contacts are not like '%'.
select Company, ContactName from Customers where ContactName like '%'

-- like-nothing
-- empty
select Company from Customers where City like ''

-- like-with-escape
select ProductName from Products where ProductName like '%100\%%' escape '\'

-- like-percent-twice
select ProductName from Products where ProductName like '%100%%'

-- not-like
select Company, ContactName from Customers where ContactName not like '%a%'

-- not-before-like
select ProductName from Products where not ProductName like '%e%'

-- not-twice-round-like
select SupplierName from Suppliers where not (SupplierName not like '%o%')

-- like-a-month
select OrderID, OrderDate from Orders where OrderDate like '2025-11-%'

-- like-a-number
select ProductID, ListPrice from Products where ListPrice like '1%9'

-- like-in-a-memo
select Company, Notes from Customers where Notes like '%delivery%' or Notes like 'Wants%'

-- glob-is-strict-about-case
select ProductName from Products where ProductName glob '*[Ss]et*'

-- in-list
select Company, CountryCode from Customers where CountryCode in ('AT', 'CH')

-- in-list-of-one
select Company from Customers where City in ('Boston')

-- in-numbers
SELECT ProductName FROM Products WHERE CategoryID IN (1,2,3) AND ListPrice > 50

-- in-text-with-commas-and-quotes
select ProductName from Products where ProductName in ('Chisel Set, 4 pcs', 'Gardener''s Knife', 'Tool Box 20"', 'no, such')

-- in-list-with-null
select Company, City from Customers where City in ('Cork', null, 'Leeds')

-- not-in-list-with-null
-- empty
select Company, City from Customers where City not in ('Cork', null)

-- in-empty-list
-- empty
select Company from Customers where City in ()

-- not-in-list
select ShipperName from Shippers where ShipperID not in (2, 4)

-- not-before-in
select Reason, ReturnID from Returns where not Reason in ('Damaged', 'Wrong item') and Quantity > 10

-- between-numbers
select ProductName, ListPrice from Products where ListPrice between 20 and 30

-- between-and-another-condition
select ProductName, ListPrice from Products
where ListPrice between 20 and 30 and Discontinued = 0 or ListPrice between 200 and 300

-- between-upside-down
-- empty
select ProductName from Products where ListPrice between 30 and 20

-- not-between
select ProductName, ListPrice from Products where ListPrice not between 3 and 150

-- not-before-between
select LastName, Salary from Employees where not Salary between 3000 and 5000

-- between-sums
select ProductName, ListPrice from Products where ListPrice between 20+2 and 30*2-10

-- value-between-columns
select ProductName from Products where 10 between PurchasePrice and ListPrice

-- between-texts
select LastName from Employees where LastName between 'D' and 'L'

-- is-null
select Company, City from Customers where Phone is null

-- is-not-null
select FirstName, LastName, LeaveDate from Employees where LeaveDate is not null

-- not-is-null
select FirstName, Notes from Employees where not Notes is null

-- null-in-one-word
select ProductName from Products where WeightKg isnull

-- not-null-in-two-words
select Company from Customers where ContactName not null and CountryCode = 'DE'

-- is-with-a-value
select Company, Phone from Customers where AccountManagerID is 9

-- is-not-with-a-value
-- Unlike <>, this finds the customers whom nobody looks after.
select Company, AccountManagerID from Customers where AccountManagerID is not 9 and CountryCode in ('DE', 'AT')

-- not-equal-and-null
select Company, AccountManagerID from Customers where AccountManagerID <> 9

-- distinct-from
select LastName, ReportsTo from Employees where ReportsTo is not distinct from null or ReportsTo is distinct from 2

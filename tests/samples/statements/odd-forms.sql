-- not-before-a-chain-of-comparisons
-- "not" takes in all of it.
select OrderID from Orders where not OrderID = 7 = 1 and OrderID < 10

-- between-and-a-truth
select CustomerID from Customers where CustomerID between 10 and 20 and Newsletter

-- between-compared-with-null
select count(*) from Customers where CreditLimit between 1000 and 2000 is null

-- in-compared-with-null
select Company, PostCode from Customers where PostCode in ('4020', null) is null and CountryCode = 'AT'

-- not-in-with-null
-- empty
select Company from Customers where Segment not in ('R', null)

-- is-a-value
select Company, CreditLimit from Customers where CreditLimit is 1500 or Phone is not null and City is 'Linz'

-- is-not-distinct-from
select OrderID, ShipperID from Orders where ShipperID is not distinct from null and OrderDate >= '2025-12-01'

-- is-null-behind-brackets
select LastName, LeaveDate from Employees where LeaveDate is not (null) and not (LeaveDate is null)

-- twice-not-null
select LastName from Employees where not LeaveDate is not null and not not ReportsTo notnull

-- like-with-an-empty-pattern-in-the-middle
select ProductName from Products where ProductName like '%%Saw%' and ProductName not like '%Saw%%Set%'

-- like-with-the-text-as-escape
select ProductName from Products where ProductName like '%100/%%' escape '/' or ProductName like 'LLinseed%' escape 'L'

-- lower-on-one-side
-- empty
select Company from Customers where lower(City) = 'Linz'

-- lower-on-both-sides
select Company, City from Customers where lower(City) = lower('LINZ') or lower(Company) like lower('%GARDEN%')

-- lower-of-an-expression
select Company from Customers where lower(Company || City) like '%linz' and not lower(City) <> 'linz'

-- numbers-of-odd-forms
select ProductID, ListPrice from Products where ListPrice > 1e2 and ListPrice < 0150.50 and ProductID <> 0x1F and WeightKg > .5

-- number-beyond-exactness
select OrderID from Orders where OrderID < 9223372036854775808 and OrderID >= 4990.0 and Freight < 1e400

-- signs-before-numbers
select OrderID, Freight from Orders where Freight > - -94 and OrderID > -+-+1

-- number-in-quotes-and-not
select count(*) from Orders where OrderID in (1, '2', 3.0) or OrderID = '4' or Remarks = 5

-- blob-and-text
select ShipperID from Shippers where ShipperName <> x'41' and x'4142' <> 'AB'

-- comments-between-all-words
select/**/Company/* , City */from--,
Customers/*x*/where/**/City/**/=/**/'Linz'--'
and--
Segment/* 'R' */<>/* " */'R'

-- constants-around-conditions
select OrderID from Orders where 1 = 1 and (1 = 0 or OrderDate >= '2025-12-28') and not 0

-- virtual-field-in-a-larger-expression
select ProductID, WarehouseID from Stock where 2 * (ReorderLevel - OnHand) > 40 and ReorderLevel - OnHand * 2 > 0

-- virtual-field-without-its-brackets
select ReorderLevel - OnHand, - (ReorderLevel - OnHand) from Stock where ReorderLevel - OnHand > 20

-- is-not-not-null
-- "not null" is unknown, and that nothing is: "is not (not null)".
select LastName, LeaveDate from Employees where LeaveDate is not not null

-- all-columns-of-a-join-by-using
-- The column after USING comes once.
select * from Stock join Warehouses using (WarehouseID) where OnHand > 250

-- column-after-using
select OrderID, LineNo, Reason from Returns join "Order Lines" using (OrderID, LineNo) where ReturnedOn >= '2025-12-01'

-- using-after-a-table-with-the-same-column
-- Takes the first table on the left that has such a column: the superior, who sells nothing.
-- empty
select s.LastName, o.OrderID from Employees s join Employees e on e.ReportsTo = s.EmployeeID
join Orders o using (EmployeeID) where o.OrderDate >= '2025-12-01'

-- name-in-square-brackets-with-its-table
select Suppliers.[City], [SupplierName] from Suppliers where [LeadDays] > 20

-- name-in-back-quotes-with-its-table
select Suppliers.`City`, `SupplierName` from Suppliers where `LeadDays` > 20
